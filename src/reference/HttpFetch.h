#pragma once
// The HTTP fetch of a small text file, as the update check needs it. The window program
// implements it with the toolkit's network access; the command line and the tests use
// SocketHttpFetch, a plain HTTP/1.0 client for http:// addresses.
#include <string>

namespace zy {

class HttpFetch {
 public:
  virtual ~HttpFetch() = default;
  // The body of a successful (200) GET of `url`; an empty text on any failure.
  virtual std::string fetch(const std::string& url) = 0;
};

class SocketHttpFetch : public HttpFetch {
 public:
  explicit SocketHttpFetch(int timeoutMilliseconds = 5000, size_t maxBytes = 65536)
      : timeoutMs_(timeoutMilliseconds), maxBytes_(maxBytes) {}
  std::string fetch(const std::string& url) override;
  int requestCount = 0;  // GETs attempted

 private:
  int timeoutMs_;
  size_t maxBytes_;
};

struct HttpUrl {
  std::string host;
  int port = 80;
  std::string path = "/";
};
// Splits "http://host[:port][/path]"; false for anything else.
bool parseHttpUrl(const std::string& url, HttpUrl& out);

}  // namespace zy

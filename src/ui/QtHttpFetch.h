#pragma once
// The HTTP fetch of the update check over the toolkit's network access: one GET, waited for in a
// local event loop with a time limit, the body returned as the bytes received.
#include <QtGlobal>

#include "reference/HttpFetch.h"

namespace zy {

class QtHttpFetch : public HttpFetch {
 public:
  explicit QtHttpFetch(int timeoutMilliseconds = 5000, qint64 maxBytes = 65536)
      : timeoutMs_(timeoutMilliseconds), maxBytes_(maxBytes) {}
  // The body of a 200 answer; an empty text on any failure (no network, refused, 404, time-out).
  std::string fetch(const std::string& url) override;
  int requestCount = 0;

 private:
  int timeoutMs_;
  qint64 maxBytes_;
};

}  // namespace zy

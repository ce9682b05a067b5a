#include "reference/HttpFetch.h"

#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>

#include "core/paths.h"
#include "core/text.h"

namespace zy {

bool parseHttpUrl(const std::string& url, HttpUrl& out) {
  std::string u = trimWhite(url);
  if (lower(u.substr(0, 7)) != "http://") return false;
  u = u.substr(7);
  size_t slash = u.find('/');
  std::string hostPort = u.substr(0, slash);
  out.path = slash == std::string::npos ? "/" : u.substr(slash);
  if (hostPort.empty()) return false;
  size_t colon = hostPort.rfind(':');
  out.port = 80;
  if (colon != std::string::npos) {
    std::string p = hostPort.substr(colon + 1);
    if (p.empty() || p.size() > 5) return false;
    for (char c : p)
      if (c < '0' || c > '9') return false;
    out.port = std::stoi(p);
    if (out.port < 1 || out.port > 65535) return false;
    hostPort = hostPort.substr(0, colon);
  }
  if (hostPort.empty()) return false;
  for (char c : hostPort)
    if (c == ' ' || c == '@' || static_cast<unsigned char>(c) < 33) return false;
  out.host = hostPort;
  for (char c : out.path)
    if (static_cast<unsigned char>(c) < 33) return false;
  return true;
}

namespace {

using Clock = std::chrono::steady_clock;

int remainingMs(Clock::time_point deadline) {
  auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
  return left > 0 ? static_cast<int>(left) : 0;
}

// A connected socket, or -1.
int connectTo(const HttpUrl& u, Clock::time_point deadline) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* res = nullptr;
  if (getaddrinfo(u.host.c_str(), std::to_string(u.port).c_str(), &hints, &res) != 0) return -1;
  int fd = -1;
  for (addrinfo* a = res; a && fd < 0; a = a->ai_next) {
    int s = ::socket(a->ai_family, a->ai_socktype | SOCK_CLOEXEC, a->ai_protocol);
    if (s < 0) continue;
    int flags = fcntl(s, F_GETFL, 0);
    fcntl(s, F_SETFL, flags | O_NONBLOCK);
    int rc = ::connect(s, a->ai_addr, a->ai_addrlen);
    if (rc != 0 && errno == EINPROGRESS) {
      pollfd p{s, POLLOUT, 0};
      if (poll(&p, 1, remainingMs(deadline)) == 1) {
        int err = 0;
        socklen_t len = sizeof err;
        getsockopt(s, SOL_SOCKET, SO_ERROR, &err, &len);
        rc = err == 0 ? 0 : -1;
      } else {
        rc = -1;
      }
    }
    if (rc == 0) fd = s;
    else ::close(s);
  }
  freeaddrinfo(res);
  return fd;
}

bool sendAll(int fd, const std::string& data, Clock::time_point deadline) {
  size_t sent = 0;
  while (sent < data.size()) {
    pollfd p{fd, POLLOUT, 0};
    if (poll(&p, 1, remainingMs(deadline)) != 1) return false;
    ssize_t n = ::send(fd, data.data() + sent, data.size() - sent, MSG_NOSIGNAL);
    if (n < 0) {
      if (errno == EAGAIN || errno == EINTR) continue;
      return false;
    }
    sent += static_cast<size_t>(n);
  }
  return true;
}

}  // namespace

std::string SocketHttpFetch::fetch(const std::string& url) {
  HttpUrl u;
  if (!parseHttpUrl(url, u)) return {};
  ++requestCount;
  const auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs_);
  int fd = connectTo(u, deadline);
  if (fd < 0) return {};
  std::string hostHeader = u.host;
  if (u.port != 80) {
    hostHeader += ':';
    hostHeader += std::to_string(u.port);
  }
  std::string request = "GET " + u.path + " HTTP/1.0\r\nHost: " + hostHeader + "\r\nUser-Agent: Zythara/" +
                        versionText() + "\r\nAccept: text/plain, */*\r\nConnection: close\r\n\r\n";
  std::string response;
  bool complete = false;
  if (sendAll(fd, request, deadline)) {
    char buf[4096];
    for (;;) {
      pollfd p{fd, POLLIN, 0};
      int pr = poll(&p, 1, remainingMs(deadline));
      if (pr < 0 && errno == EINTR) continue;
      if (pr != 1) break;  // timed out
      ssize_t n = ::recv(fd, buf, sizeof buf, 0);
      if (n < 0) {
        if (errno == EAGAIN || errno == EINTR) continue;
        break;
      }
      if (n == 0) {
        complete = true;
        break;
      }
      response.append(buf, static_cast<size_t>(n));
      if (response.size() > maxBytes_ + 8192) break;  // not a small text file
    }
  }
  ::close(fd);
  if (!complete) return {};

  size_t headEnd = response.find("\r\n\r\n");
  size_t bodyStart = headEnd == std::string::npos ? std::string::npos : headEnd + 4;
  if (headEnd == std::string::npos) {
    headEnd = response.find("\n\n");
    bodyStart = headEnd == std::string::npos ? std::string::npos : headEnd + 2;
  }
  if (headEnd == std::string::npos) return {};
  // "HTTP/1.x 200 ..."
  std::string status = response.substr(0, response.find_first_of("\r\n"));
  std::vector<std::string> parts = split(status, ' ');
  if (parts.size() < 2 || !startsWith(parts[0], "HTTP/") || parts[1] != "200") return {};
  std::string body = response.substr(bodyStart);
  if (body.size() > maxBytes_) return {};
  return body;
}

}  // namespace zy

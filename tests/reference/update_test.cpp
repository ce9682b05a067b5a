// The update check against a version file served from 127.0.0.1.
#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <map>
#include <mutex>
#include <thread>

#include "core/dates.h"
#include "reference/UpdateCheck.h"
#include "support/TestSupport.h"

namespace zy::test {
namespace {

// A tiny HTTP server: path -> body (200); any other path is a 404.
class LocalServer {
 public:
  explicit LocalServer(std::map<std::string, std::string> files) : files_(std::move(files)) {
    fd_ = ::socket(AF_INET, SOCK_STREAM, 0);
    int one = 1;
    setsockopt(fd_, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    a.sin_port = 0;
    ::bind(fd_, reinterpret_cast<sockaddr*>(&a), sizeof a);
    ::listen(fd_, 8);
    socklen_t len = sizeof a;
    getsockname(fd_, reinterpret_cast<sockaddr*>(&a), &len);
    port_ = ntohs(a.sin_port);
    thread_ = std::thread([this] { serve(); });
  }
  ~LocalServer() {
    stop_ = true;
    thread_.join();
    ::close(fd_);
  }
  std::string url(const std::string& path) const { return "http://127.0.0.1:" + std::to_string(port_) + path; }
  int requests() const { return requests_; }
  std::string lastRequest() {
    std::lock_guard<std::mutex> g(m_);
    return last_;
  }

 private:
  void serve() {
    while (!stop_) {
      pollfd p{fd_, POLLIN, 0};
      if (poll(&p, 1, 50) != 1) continue;
      int c = ::accept(fd_, nullptr, nullptr);
      if (c < 0) continue;
      std::string req;
      char buf[1024];
      while (req.find("\r\n\r\n") == std::string::npos) {
        ssize_t n = ::recv(c, buf, sizeof buf, 0);
        if (n <= 0) break;
        req.append(buf, static_cast<size_t>(n));
      }
      ++requests_;
      {
        std::lock_guard<std::mutex> g(m_);
        last_ = req;
      }
      std::string path = req.substr(4, req.find(' ', 4) - 4);
      auto it = files_.find(path);
      std::string resp = it == files_.end()
                             ? std::string("HTTP/1.0 404 Not Found\r\nContent-Type: text/html\r\n\r\n<h1>2.99.999</h1>")
                             : "HTTP/1.0 200 OK\r\nContent-Type: text/plain\r\n\r\n" + it->second;
      ::send(c, resp.data(), resp.size(), MSG_NOSIGNAL);
      ::close(c);
    }
  }
  std::map<std::string, std::string> files_;
  int fd_ = -1;
  int port_ = 0;
  std::atomic<bool> stop_{false};
  std::atomic<int> requests_{0};
  std::mutex m_;
  std::string last_;
  std::thread thread_;
};

const std::string kNextCheck = "11/27/2026 10:30:00 AM";  // the bench's clock plus five days

TEST(UpdateCheck, VersionTextsArePaddedForComparisonAsText) {
  EXPECT_EQ(updateVersionText(), "2.00.001");
  EXPECT_EQ(downloadPageFor("http://127.0.0.1:8080/zy/ZYCurrent.ver"), "http://127.0.0.1:8080/zy/download.html");
  EXPECT_EQ(downloadPageFor("http://example.net"), "http://example.net/download.html");
  HttpUrl u;
  ASSERT_TRUE(parseHttpUrl("http://127.0.0.1:8080/zy/ZYCurrent.ver", u));
  EXPECT_EQ(u.host + " " + std::to_string(u.port) + " " + u.path, "127.0.0.1 8080 /zy/ZYCurrent.ver");
  for (const char* refused : {"https://example.net/x", "http://:80/x", "http://host:99999/x"})
    EXPECT_FALSE(parseHttpUrl(refused, u)) << refused;
}

TEST(UpdateCheck, NewerEqualAndMissingVersionsFromALocalServer) {
  LocalServer server({{"/newer/ZYCurrent.ver", "2.00.010\r\n"}, {"/same/ZYCurrent.ver", "2.00.001\n"},
                      {"/older/ZYCurrent.ver", "1.99.999"}});
  Bench b;
  SocketHttpFetch http(3000);
  std::vector<std::string> opened;
  auto browser = [&](const std::string& u) { opened.push_back(u); };

  // Newer: the question; Yes opens the download page of the same server.
  UpdateResult r = checkForUpdate(*b.wb, http, server.url("/newer/ZYCurrent.ver"), browser);
  EXPECT_TRUE(r.outcome == UpdateOutcome::Newer && r.remoteVersion == "2.00.010");
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Zythara Updates: A New Version of Zythara is available.  Download it Now?"});
  EXPECT_EQ(b.prompter.shown[0].buttons, Buttons::YesNo);
  EXPECT_EQ(opened, std::vector<std::string>{server.url("/newer/download.html")});
  EXPECT_EQ(b.settings.read("Settings", "Check Update", ""), kNextCheck);
  EXPECT_NE(server.lastRequest().find("GET /newer/ZYCurrent.ver HTTP/1.0\r\n"), std::string::npos);

  // Five days on in every outcome: the next check is not due and makes no request.
  int before = server.requests();
  r = checkForUpdate(*b.wb, http, server.url("/newer/ZYCurrent.ver"), browser);
  EXPECT_EQ(r.outcome, UpdateOutcome::NotDue);
  EXPECT_TRUE(server.requests() == before && http.requestCount == 1);

  // No: nothing opened.
  b.settings.write("Settings", "Check Update", "1/1/2007");
  b.prompter.answers = {Answer::No};
  EXPECT_EQ(checkForUpdate(*b.wb, http, server.url("/newer/ZYCurrent.ver"), browser).outcome, UpdateOutcome::Newer);
  EXPECT_EQ(opened.size(), 1u);

  // Equal and older versions, no version file (a 404 page is not a version) and no server at
  // all: silent, and the next check five days on.
  const size_t shown = b.prompter.shown.size();
  const std::pair<std::string, UpdateOutcome> silent[] = {
      {server.url("/same/ZYCurrent.ver"), UpdateOutcome::Current},
      {server.url("/older/ZYCurrent.ver"), UpdateOutcome::Current},
      {server.url("/missing/ZYCurrent.ver"), UpdateOutcome::Unavailable},
      {"http://127.0.0.1:1/ZYCurrent.ver", UpdateOutcome::Unavailable}};
  for (const auto& [url, outcome] : silent) {
    b.settings.write("Settings", "Check Update", "1/1/2007");
    r = checkForUpdate(*b.wb, http, url, browser);
    EXPECT_EQ(r.outcome, outcome) << url;
    EXPECT_EQ(b.settings.read("Settings", "Check Update", ""), kNextCheck) << url;
  }
  EXPECT_EQ(r.remoteVersion, "");
  EXPECT_TRUE(b.prompter.shown.size() == shown && b.wb->errors.reportCount == 0);
}

TEST(UpdateCheck, TheAddressComesFromTheSettingsAndAFutureDateMakesNoRequest) {
  LocalServer server(std::map<std::string, std::string>{{"/ZYCurrent.ver", "2.00.001"}});
  Bench b;
  SocketHttpFetch http(3000);
  b.settings.write("Settings", "Update Address", server.url("/ZYCurrent.ver"));
  b.wb->defaults.autoUpdate = 0;  // "Automatically Check for Zythara Updates" off: no request at start
  EXPECT_TRUE(startupUpdateCheck(*b.wb, http).outcome == UpdateOutcome::NotDue && server.requests() == 0);
  b.wb->defaults.autoUpdate = 1;
  EXPECT_TRUE(startupUpdateCheck(*b.wb, http).outcome == UpdateOutcome::Current && server.requests() == 1);

  // Due exactly now is not earlier than now: not due.
  b.settings.write("Settings", "Check Update", "11/22/2026 10:30:00 AM");
  EXPECT_FALSE(updateCheckDue(*b.wb));
  b.settings.write("Settings", "Check Update", "12/31/2030");
  EXPECT_TRUE(checkForUpdate(*b.wb, http).outcome == UpdateOutcome::NotDue && server.requests() == 1);
  EXPECT_EQ(b.settings.read("Settings", "Check Update", ""), "12/31/2030");
  // An unreadable date is due, and is replaced.
  b.settings.write("Settings", "Check Update", "soon");
  EXPECT_TRUE(updateCheckDue(*b.wb));
  EXPECT_EQ(updateAddress(MemorySettingsStore()), kDefaultUpdateAddress);
}

}  // namespace
}  // namespace zy::test

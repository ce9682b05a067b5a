#include "ui/QtHttpFetch.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace zy {

std::string QtHttpFetch::fetch(const std::string& url) {
  QUrl u(QString::fromStdString(url));
  if (!u.isValid() || (u.scheme() != "http" && u.scheme() != "https")) return {};
  ++requestCount;
  QNetworkAccessManager nam;
  QNetworkRequest request(u);
  request.setTransferTimeout(timeoutMs_);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  QNetworkReply* reply = nam.get(request);
  QEventLoop loop;
  QTimer guard;
  guard.setSingleShot(true);
  QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
  QObject::connect(&guard, &QTimer::timeout, &loop, &QEventLoop::quit);
  // A version file is a few bytes; anything far larger is no version file.
  QObject::connect(reply, &QNetworkReply::downloadProgress, &loop, [&](qint64 received, qint64) {
    if (received > maxBytes_) reply->abort();
  });
  guard.start(timeoutMs_ + 500);
  if (!reply->isFinished()) loop.exec(QEventLoop::ExcludeUserInputEvents);
  std::string body;
  if (reply->isFinished() && reply->error() == QNetworkReply::NoError &&
      reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 200) {
    QByteArray bytes = reply->readAll();
    if (bytes.size() <= maxBytes_) body.assign(bytes.constData(), static_cast<size_t>(bytes.size()));
  } else if (!reply->isFinished()) {
    reply->abort();
  }
  delete reply;
  return body;
}

}  // namespace zy

#include "ui/frmSplash.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/TopicIcons.h"
#include "workbench/Startup.h"

namespace zy {

frmSplash::frmSplash(QWidget* parent) : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName("frmSplash");
  setAttribute(Qt::WA_DeleteOnClose, false);
  setFixedSize(460, 260);
  setCursor(Qt::PointingHandCursor);
  setToolTip(tr("Click to continue"));

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(28, 24, 28, 20);
  layout->setSpacing(6);

  auto* icon = new QLabel;
  icon->setPixmap(topicIcon(TopicIcon::OpenBook).pixmap(64, 64));
  icon->setAlignment(Qt::AlignCenter);
  layout->addWidget(icon);

  auto* product = new QLabel(QString::fromUtf8(kApplicationName));
  product->setObjectName("lblProductName");
  QFont pf = product->font();
  pf.setPointSizeF(pf.pointSizeF() * 2.0);
  pf.setBold(true);
  product->setFont(pf);
  product->setAlignment(Qt::AlignCenter);
  layout->addWidget(product);

  auto* title = new QLabel("Homebrewing Encyclopedia");
  title->setObjectName("lblTitle");
  QFont tf = title->font();
  tf.setPointSizeF(tf.pointSizeF() * 1.4);
  title->setFont(tf);
  title->setAlignment(Qt::AlignCenter);
  layout->addWidget(title);
  layout->addStretch();

  auto* version = new QLabel(QString::fromStdString(splashVersionLine()));
  version->setObjectName("lblVersion");
  version->setAlignment(Qt::AlignRight);
  layout->addWidget(version);

  if (QScreen* s = screen()) move(s->availableGeometry().center() - rect().center());
}

void frmSplash::mousePressEvent(QMouseEvent* event) {
  splashDone = true;
  event->accept();
}

void frmSplash::paintEvent(QPaintEvent*) {
  QPainter p(this);
  QLinearGradient g(0, 0, 0, height());
  g.setColorAt(0, QColor(252, 236, 196));
  g.setColorAt(1, QColor(214, 160, 72));
  p.fillRect(rect(), g);
  p.setPen(QPen(QColor(110, 70, 20), 2));
  p.drawRect(rect().adjusted(1, 1, -2, -2));
}

}  // namespace zy

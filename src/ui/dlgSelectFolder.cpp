#include "ui/dlgSelectFolder.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QEvent>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "ui/QtPrompter.h"

namespace zy {

dlgSelectFolder::dlgSelectFolder(const QString& title, const QString& initialFolder, QWidget* parent)
    : QDialog(parent) {
  setObjectName("dlgSelectFolder");
  setWindowTitle(title);

  model_ = new QFileSystemModel(this);
  model_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
  model_->setRootPath("/");

  tvFolders = new QTreeView;
  tvFolders->setObjectName("tvFolders");
  tvFolders->setModel(model_);
  for (int c = 1; c < model_->columnCount(); ++c) tvFolders->hideColumn(c);
  tvFolders->setHeaderHidden(true);
  tvFolders->setToolTip(tr("Click a folder to choose it; double-click to open it"));

  auto* label = new QLabel(tr("&Folder:"));
  txtFolder = new QLineEdit;
  txtFolder->setObjectName("txtFolder");
  label->setBuddy(txtFolder);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(txtFolder, 1);

  cmdNewFolder = new QPushButton(tr("&New Folder..."));
  cmdNewFolder->setObjectName("cmdNewFolder");
  cmdNewFolder->setToolTip(tr("Make a folder inside the chosen one"));
  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  cmdOK = box->button(QDialogButtonBox::Ok);
  box->addButton(cmdNewFolder, QDialogButtonBox::ActionRole);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tvFolders, 1);
  layout->addLayout(row);
  layout->addWidget(box);

  connect(tvFolders->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) {
            if (index.isValid()) txtFolder->setText(model_->filePath(index));
          });
  connect(txtFolder, &QLineEdit::textChanged, this,
          [this](const QString& t) { cmdOK->setEnabled(!t.trimmed().isEmpty()); });
  connect(cmdNewFolder, &QPushButton::clicked, this, &dlgSelectFolder::newFolder);
  // The folders are read in the background: each folder read may bring the proposed one nearer.
  connect(model_, &QFileSystemModel::directoryLoaded, this, [this] { revealFolder(); });
  connect(model_, &QFileSystemModel::rowsInserted, this, [this] { revealFolder(); });
  connect(model_, &QFileSystemModel::layoutChanged, this, [this] { revealFolder(); });
  tvFolders->viewport()->installEventFilter(this);
  tvFolders->installEventFilter(this);
  txtFolder->installEventFilter(this);
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);

  setFolder(initialFolder);
  resize(480, 420);
}

QString dlgSelectFolder::folder() const { return QDir::cleanPath(txtFolder->text().trimmed()); }

void dlgSelectFolder::setFolder(const QString& path) {
  txtFolder->setText(path);
  revealing_ = QDir::cleanPath(path);
  revealFolder();
}

bool dlgSelectFolder::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) revealing_.clear();
  return QDialog::eventFilter(watched, event);
}

void dlgSelectFolder::revealFolder() {
  if (revealing_.isEmpty()) return;
  QModelIndex i = model_->index(revealing_);
  if (!i.isValid()) return;
  tvFolders->setCurrentIndex(i);
  tvFolders->scrollTo(i, QAbstractItemView::PositionAtCenter);
  tvFolders->expand(i);
  txtFolder->setText(revealing_);
}

void dlgSelectFolder::newFolder() {
  bool ok = false;
  QString name = QInputDialog::getText(this, tr("New Folder"), tr("Name of the new folder:"), QLineEdit::Normal, {}, &ok);
  if (!ok || name.trimmed().isEmpty()) return;
  QDir base(folder());
  if (!base.exists() || !base.mkpath(name.trimmed())) {
    QMessageBox::warning(this, tr("New Folder"), tr("The folder could not be made in %1.").arg(base.path()));
    return;
  }
  setFolder(base.filePath(name.trimmed()));
}

std::optional<std::string> dlgSelectFolder::pick(QWidget* parent, const std::string& title, const std::string& initial) {
  // The folder is a path of the file system, in its own encoding, not a text of the program.
  dlgSelectFolder dlg(qs(title), QFile::decodeName(initial.c_str()), parent);
  if (dlg.exec() != QDialog::Accepted || dlg.folder().isEmpty()) return std::nullopt;
  return QFile::encodeName(dlg.folder()).toStdString();
}

}  // namespace zy

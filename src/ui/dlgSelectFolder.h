#pragma once
// The folder picker of backup and restore: a tree of folders, the chosen path in a box that can
// be typed in, and a button for a new folder.
#include <QDialog>
#include <optional>
#include <string>

class QFileSystemModel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace zy {

class dlgSelectFolder : public QDialog {
  Q_OBJECT
 public:
  dlgSelectFolder(const QString& title, const QString& initialFolder, QWidget* parent = nullptr);
  QString folder() const;
  void setFolder(const QString& path);

  // Shows the picker; the chosen folder or nothing on Cancel. The title is 8-bit text; the
  // folders, in and out, are paths in the file system's encoding.
  static std::optional<std::string> pick(QWidget* parent, const std::string& title, const std::string& initial);

  QLineEdit* txtFolder = nullptr;
  QTreeView* tvFolders = nullptr;
  QPushButton* cmdNewFolder = nullptr;
  QPushButton* cmdOK = nullptr;

 private:
  void newFolder();
  // Brings the proposed folder into sight as the folders above it are read, until the user
  // turns to the tree or the box.
  void revealFolder();
  bool eventFilter(QObject* watched, QEvent* event) override;
  QFileSystemModel* model_ = nullptr;
  QString revealing_;  // the folder to show while the tree is still being read
};

}  // namespace zy

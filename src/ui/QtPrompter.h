#pragma once
// The Prompter port over Qt's message boxes and file dialogs.
#include <QWidget>
#include <QPointer>

#include "core/ports.h"

namespace zy {

class QtPrompter : public Prompter {
 public:
  explicit QtPrompter(QWidget* parent = nullptr) : parent_(parent) {}
  void setParent(QWidget* parent) { parent_ = parent; }
  Answer message(const std::string& text, const std::string& title, Icon icon, Buttons buttons,
                 Answer defaultAnswer) override;
  std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                   const std::string& initial) override;
  std::optional<std::string> openFile(const std::string& title, const std::string& filter,
                                      const std::string& initialPath) override;
  std::optional<std::string> saveFile(const std::string& title, const std::string& filter,
                                      const std::string& initialPath) override;
  std::optional<std::string> chooseFolder(const std::string& title, const std::string& initialPath) override;
  void beep() override;

 private:
  QPointer<QWidget> parent_;
};

// 8-bit text of the logic <-> Qt strings.
QString qs(const std::string& text8bit);
std::string s8(const QString& text);
// "Text Files (*.txt)|*.txt|All Files (*.*)|*.*" -> "Text Files (*.txt);;All Files (*.*)"
QString qtFilter(const std::string& filter);

}  // namespace zy

#pragma once
// What the logic asks of the platform. Each port has a Qt implementation for the windows, a
// console one for the command line and a scripted one for tests. All texts are 8-bit.
#include <cstdio>
#include <optional>
#include <string>

namespace zy {

enum class Icon { None, Information, Warning, Critical, Question };
enum class Buttons { OK, OKCancel, YesNo, YesNoCancel, RetryCancel, AbortRetryIgnore };
enum class Answer { OK, Cancel, Yes, No, Retry, Abort, Ignore };

class Prompter {
 public:
  virtual ~Prompter() = default;
  // A message box. `defaultAnswer` is the button that Enter presses.
  virtual Answer message(const std::string& text, const std::string& title, Icon icon = Icon::None,
                         Buttons buttons = Buttons::OK, Answer defaultAnswer = Answer::OK) = 0;
  // A text input box; no value when cancelled.
  virtual std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                           const std::string& initial) = 0;
  // File dialogs; `filter` in the form "Text Files (*.txt)|*.txt|All Files (*.*)|*.*".
  virtual std::optional<std::string> openFile(const std::string& title, const std::string& filter,
                                              const std::string& initialPath) = 0;
  virtual std::optional<std::string> saveFile(const std::string& title, const std::string& filter,
                                              const std::string& initialPath) = 0;
  virtual std::optional<std::string> chooseFolder(const std::string& title, const std::string& initialPath) = 0;
  // The beep of a refused key.
  virtual void beep() {}
};

class Clock {
 public:
  virtual ~Clock() = default;
  // Now as a date serial (days since 1899-12-30, time as the fraction).
  virtual double now() const = 0;
  double today() const;
  // Seconds since midnight.
  double secondsOfDay() const;
};

class SystemClock : public Clock {
 public:
  double now() const override;
};

class FixedClock : public Clock {
 public:
  explicit FixedClock(double serial) : t_(serial) {}
  double now() const override { return t_; }
  void set(double serial) { t_ = serial; }

 private:
  double t_;
};

// Answers every question with one fixed answer and writes each message to a stream as
// "[Title] text" (the command line's prompter).
class ConsolePrompter : public Prompter {
 public:
  ConsolePrompter(std::FILE* out, bool answerYes) : out_(out), yes_(answerYes) {}
  Answer message(const std::string& text, const std::string& title, Icon icon, Buttons buttons,
                 Answer defaultAnswer) override;
  std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                   const std::string& initial) override;
  std::optional<std::string> openFile(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> saveFile(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> chooseFolder(const std::string&, const std::string&) override { return std::nullopt; }
  int messageCount() const { return count_; }

 private:
  std::FILE* out_;
  bool yes_;
  int count_ = 0;
};

}  // namespace zy

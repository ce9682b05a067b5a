#include "core/ports.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "core/dates.h"
#include "core/text.h"

namespace zy {

double Clock::today() const { return std::floor(now()); }

double Clock::secondsOfDay() const {
  double t = now();
  return (t - std::floor(t)) * 86400.0;
}

double SystemClock::now() const {
  std::time_t t = std::time(nullptr);
  std::tm lt{};
  localtime_r(&t, &lt);
  return serialFromCivil(lt.tm_year + 1900, lt.tm_mon + 1, lt.tm_mday, lt.tm_hour, lt.tm_min, lt.tm_sec);
}

Answer ConsolePrompter::message(const std::string& text, const std::string& title, Icon, Buttons buttons,
                                Answer) {
  ++count_;
  std::fprintf(out_, "[%s] %s\n", displayUtf8(title).c_str(), displayUtf8(text).c_str());
  std::fflush(out_);
  switch (buttons) {
    case Buttons::YesNo:
    case Buttons::YesNoCancel: return yes_ ? Answer::Yes : Answer::No;
    case Buttons::OKCancel: return yes_ ? Answer::OK : Answer::Cancel;
    case Buttons::RetryCancel: return yes_ ? Answer::Retry : Answer::Cancel;
    case Buttons::AbortRetryIgnore: return yes_ ? Answer::Ignore : Answer::Abort;
    case Buttons::OK: break;
  }
  return Answer::OK;
}

std::optional<std::string> ConsolePrompter::input(const std::string& prompt, const std::string& title,
                                                  const std::string& initial) {
  ++count_;
  std::fprintf(out_, "[%s] %s\n", displayUtf8(title).c_str(), displayUtf8(prompt).c_str());
  if (!yes_) return std::nullopt;
  return initial;
}

}  // namespace zy

#include "tools/Console.h"

#include <termios.h>
#include <unistd.h>

#include "base/Words.h"
#include "shop/Refusal.h"

namespace {

/// Typed characters stay off the screen while this lives.
class HiddenTyping {
 public:
  HiddenTyping() {
    if (tcgetattr(STDIN_FILENO, &shown_) != 0) return;
    termios hidden = shown_;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    changed_ = tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden) == 0;
  }
  ~HiddenTyping() {
    if (changed_) tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown_);
  }
  HiddenTyping(const HiddenTyping&) = delete;
  HiddenTyping& operator=(const HiddenTyping&) = delete;

 private:
  termios shown_{};
  bool changed_ = false;
};

std::string readLine(Console& console) {
  std::string line;
  if (!std::getline(console.in, line)) throw Refusal(Words::tr("没有给出密码。"));
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

std::string readUnseen(Console& console, const std::string& prompt) {
  const HiddenTyping hidden;
  console.err << prompt << std::flush;
  std::string line = readLine(console);
  console.err << '\n';
  return line;
}

}  // namespace

std::string askPassword(Console& console, const std::string& prompt) {
  return console.isTerminal ? readUnseen(console, prompt) : readLine(console);
}

std::string askNewPassword(Console& console, const std::string& prompt) {
  std::string password = askPassword(console, prompt);
  if (console.isTerminal && readUnseen(console, Words::tr("再输一次：")) != password)
    throw Refusal(Words::tr("两次输入的密码不一样。"));
  return password;
}

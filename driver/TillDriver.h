#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Starts the real till off-screen and works it with real key events. A step that the till does not
/// take throws std::runtime_error naming the step.
class TillDriver {
 public:
  /// `folder` is an installed program folder with its data file.
  explicit TillDriver(const std::filesystem::path& folder, int screenWidth = 1024,
                      int screenHeight = 768);
  ~TillDriver();  ///< kills a till that is still running
  TillDriver(const TillDriver&) = delete;
  TillDriver& operator=(const TillDriver&) = delete;

  /// A key click in the active window: "Return", "F1", "Up", "Menu", "Ctrl+A", ...
  void key(std::string_view name);
  /// Types a text.
  void type(std::string_view text);
  /// Types a text and presses Enter.
  void enter(std::string_view text);
  /// Presses Tab until that control has the keyboard.
  void tabTo(std::string_view control);
  /// Keys by their names, one after the other, with blanks between; "'text" types it, "=text" types
  /// it and presses Enter, ">window" waits for a window, "@control" goes there by Tab.
  void play(const std::string& script);
  /// Waits until the keys sent so far have been delivered.
  void sync();
  /// Waits until the window of that name is the active one.
  void waitFor(std::string_view window);
  /// Waits until a control shows a text that contains `part`.
  void waitForText(std::string_view control, std::string_view part);
  /// The name of the active window, empty when there is none.
  std::string activeWindow();
  /// The text that a label or an input field shows.
  std::string text(std::string_view control);
  /// Saves a picture of the screen as PNG.
  void shot(const std::filesystem::path& file);

  /// Works the till with that many random events (see driver/Monkey.h), typing also the lines of
  /// the file `words`. Gives how many it came to, in steps of a hundred: fewer when one of them
  /// ended the till. Throws when a window cannot be left or the till stands still.
  int monkey(unsigned seed, int events, const std::filesystem::path& words);

  /// Waits for the till to end by itself and gives its exit code.
  int waitForEnd();
  /// Kills the till at once, as a power cut would.
  void kill();
  /// The process that runs the till, for one who measures it or kills it from another thread; it is
  /// this object's until waitForEnd or kill.
  int process() const { return process_; }

 private:
  std::string ask(const std::string& command);
  void send(const std::string& command);
  std::optional<std::string> receiveLine();

  int socket_ = -1;
  int process_ = -1;
  std::string received_;
};

#pragma once

class TillDriver;

/// The main menu and the further menu of the demo shop's till. Each keeps its highlight where it
/// was last time.
class TillMenus {
 public:
  // Their entries, by position.
  enum Main { kSell, kCount, kPosSet, kEditPwd, kEnd, kMainEntries };
  enum Further {
    kSearch,
    kUnSell,
    kAddMen,
    kKeySet,
    kShift,
    kJournal,
    kPractice,
    kExit,
    kHelp,
    kFurtherEntries
  };

  explicit TillMenus(TillDriver& till) : till_(till) {}

  void open(Main entry);
  /// And waits for the window of that name.
  void open(Further entry, const char* window);
  /// Chooses the end, and waits for it. Throws std::runtime_error when it is no clean one.
  void end();

 private:
  void choose(int& highlight, int entry, int entries);

  TillDriver& till_;
  int main_ = kSell;
  int further_ = kSearch;
};

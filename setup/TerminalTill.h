#pragma once

#include <memory>

#include "app/ClsPosSet.h"
#include "app/Ports.h"
#include "base/DateTime.h"
#include "platform/IniFile.h"
#include "shop/TillSetup.h"

class QGuiApplication;

/// The till of a shop's folder for the questions at a terminal: the choices of the setup window's
/// pages, with the same texts, and the same trial.
class TerminalTill : public TillSetup {
 public:
  /// Makes an application without a screen if there is none, which texts and the page printer need;
  /// it has to be told what to speak.
  TerminalTill(const std::filesystem::path& shopFolder, Clock clock);
  ~TerminalTill() override;

  std::vector<Choice> devices() override;
  Choice colours() override;
  std::vector<std::string> tryDevices() override;
  void load(NewShop& answers) override;
  void store(const NewShop& answers) override;

 private:
  std::unique_ptr<QGuiApplication> application_;
  IniFile configIni_;
  Ports ports_;
  Clock clock_;
  ClsPosSet till_;
};

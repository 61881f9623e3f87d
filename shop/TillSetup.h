#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct NewShop;

/// What a new shop's questions at a terminal are told of the till on this machine: its devices and
/// colours, which are kept beside the data file. Texts are for the owner.
class TillSetup {
 public:
  virtual ~TillSetup() = default;

  /// What the settings file has already is the answer that is offered. Comes first.
  virtual void load(NewShop& answers) = 0;

  /// Something to choose.
  struct Choice {
    std::string text;
    std::vector<std::string> answers;
    std::size_t chosen;  ///< as it stands
    std::function<void(std::size_t answer)> choose;
  };
  virtual std::vector<Choice> devices() = 0;
  virtual Choice colours() = 0;
  /// Tries the devices as they are chosen (settings/DeviceTest.h); a line of each one's result.
  virtual std::vector<std::string> tryDevices() = 0;
  /// Stores what was chosen and the shop's answers for the settings file. Throws Failure when they
  /// cannot be stored.
  virtual void store(const NewShop& answers) = 0;
};

/// Makes the one of the till that has its shop in that folder.
using TillSetupOf = std::function<std::unique_ptr<TillSetup>(const std::filesystem::path& folder)>;

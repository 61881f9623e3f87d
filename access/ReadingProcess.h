#pragma once

#include <functional>
#include <string>
#include <string_view>

/// Where a child process puts what it read.
class Outbox {
 public:
  explicit Outbox(int pipe) : pipe_(pipe) {}

  /// One message, empty as a sign of life. Ends the process when nobody reads any more.
  void send(std::string_view message) const;

 private:
  int pipe_;
};

/// Runs `work` in a child process and hands over its messages in their order. A Failure that `work`
/// throws is thrown here; so is a text for the owner when the process dies or is silent for a
/// minute. What `take` throws ends it.
///
/// The child has no files of this process but the pipe, prints nothing and leaves no memory dump.
void readInChild(const std::function<void(const Outbox&)>& work,
                 const std::function<void(std::string_view)>& take);

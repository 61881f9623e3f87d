#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "link/ServerAddress.h"

struct pg_conn;

/// What came of a question to the server.
struct ServerAnswer {
  enum Kind {
    kAnswer,   ///< it is done, and `rows` is what the server says
    kRefusal,  ///< the server did nothing, for the reason in `text`
    kUnknown,  ///< nobody knows whether it is done: silence, a broken line, a warning
  };
  using Row = std::vector<std::optional<std::string>>;

  Kind kind = kUnknown;
  std::string text = {};  ///< the server's or the system's own words
  /// SQLSTATE of a refusal, and of a server that did not let the line in; of a line that was not
  /// opened because of the server's certificate, this one.
  std::string state = {};
  static constexpr const char* kWrongCertificate = "TL0CA";
  std::vector<Row> rows = {};

  bool isDone() const { return kind == kAnswer; }
};

/// A column of a row as a whole number; nothing for null.
std::optional<std::int64_t> wholeAt(const ServerAnswer::Row& row, std::size_t column);

/// A line to a PostgreSQL server that never waits longer than it is told to. The line is opened by
/// the first question and closed by everything that leaves one unknown. Of several hosts, which the
/// parameter "host" names with "," between them, each opening tries one: the one that answered, or
/// behind one that did not, the next. (A name of a host that is
/// no address is looked up within the system's own time.)
class ServerLine {
 public:
  using Milliseconds = std::chrono::milliseconds;
  static constexpr Milliseconds kPatience{5000};

  explicit ServerLine(LineParameters parameters);
  ~ServerLine();
  ServerLine(const ServerLine&) = delete;
  ServerLine& operator=(const ServerLine&) = delete;

  /// Asks one statement with $1 ... for the values, each as text or null, and waits so long for the
  /// answer, and before that as long for the line if it is not open.
  ServerAnswer ask(const char* statement, const ServerAnswer::Row& values = {},
                   Milliseconds patience = kPatience);
  /// The same, with line and answer within the one patience.
  ServerAnswer askWithin(Milliseconds patience, const char* statement,
                         const ServerAnswer::Row& values);
  /// Runs several statements in one transaction, without an answer's rows.
  ServerAnswer run(const std::string& script, Milliseconds patience);
  void close();

  /// From now on the line listens to that channel of the server's (LISTEN), whenever it is open.
  void listenTo(std::string channel);
  /// Whether somebody called there (NOTIFY) since this was asked last, or the line was opened since
  /// and may have missed a call. Waits for nothing.
  bool wasCalled();

  /// What the server keeps to know a role's password by, without the password (SCRAM-SHA-256,
  /// RFC 5803). Throws Failure when the line cannot be opened.
  std::string verifierOf(const std::string& password, const std::string& role);

 private:
  using Moment = std::chrono::steady_clock::time_point;
  struct Closer {
    void operator()(pg_conn* line) const;
  };

  std::optional<ServerAnswer> openFault(Moment deadline);
  ServerAnswer askOpen(const char* statement, const ServerAnswer::Row& values, Moment deadline);
  ServerAnswer unknown(const std::string& why);
  ServerAnswer notLetIn();
  ServerAnswer answer(Moment deadline);
  bool receive(Moment deadline);
  bool wait(bool forWriting, Moment deadline) const;
  std::string fault() const;
  static void noticed(void* line, const char* text);

  std::optional<ServerAnswer> openOnce(Moment deadline);
  std::optional<ServerAnswer> listen(Moment deadline);
  LineParameters parameters_;
  std::vector<std::string> hosts_;  ///< several, or none: then the parameters say it
  std::size_t host_ = 0;            ///< of these, the one to try
  std::unique_ptr<pg_conn, Closer> line_;
  std::string notice_, channel_;
  bool isCalled_ = false;
};

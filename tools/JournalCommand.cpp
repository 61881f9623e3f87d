#include "tools/JournalCommand.h"

#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "base/Words.h"
#include "saleslib/JournalKinds.h"
#include "saleslib/JournalQuery.h"
#include "saleslib/JournalTexts.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "tools/DataFileOptions.h"
#include "tools/ParserTexts.h"

namespace {

struct Options {
  DataFileOptions file;
  std::string from, to, kind;
  std::optional<int> operatorId, till;
};

/// A kind's key, which may be typed as people call the kind.
std::string kindOf(const std::string& typed) {
  if (typed.empty() || entryKindOf(typed) != nullptr) return typed;
  for (const EntryKindName& kind : entryKinds()) {
    if (typed == kind.name || typed == Words::tr(kind.name)) return kind.key;
  }
  throw Refusal(Words::tr("日志里没有这一种：%1", typed));
}

JournalFilter filterOf(const Options& options, const Date& today) {
  return {.from = typedDay(options.from, today),
          .to = typedDay(options.to, today),
          .kind = kindOf(options.kind),
          .operatorId = options.operatorId,
          .till = options.till};
}

std::map<std::int64_t, std::string> namesOf(Connection& connection) {
  std::map<std::int64_t, std::string> names = {{0, Words::tr("店主工具")}};
  Rows rows = connection.query("select id, name from operators");
  while (rows.next())
    names[rows.whole("id").value_or(0)] = rows.text("id") + " " + rows.text("name");
  return names;
}

void print(const Options& options, Console& console) {
  const std::unique_ptr<Connection> connection = options.file.open(console);
  const JournalFilter filter = filterOf(options, console.clock().date);
  const auto names = namesOf(*connection);
  const auto person = [&names](const std::optional<std::int64_t>& id) -> std::string {
    if (!id) return "-";
    const auto known = names.find(*id);
    return known == names.end() ? std::to_string(*id) : known->second;
  };
  readJournal(*connection, filter, [&](const JournalEntry& entry) {
    console.out << entry.seq << '\t' << entry.time << '\t' << entry.till << '\t'
                << person(entry.operatorId) << '\t' << person(entry.approver) << '\t'
                << entryName(entry) << '\t' << entry.touches << '\t' << entryDetails(entry) << '\n';
    return static_cast<bool>(console.out);
  });
  if (!console.out) throw Refusal(Words::tr("写不下去，磁盘可能满了，日志不完整。"));
}

std::string kindsExplained() {
  std::string text = Words::tr("种类：");
  for (const EntryKindName& kind : entryKinds())
    text.append("\n  ").append(kind.key).append("  ").append(Words::tr(kind.name));
  return text;
}

}  // namespace

void addJournalCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "journal",
      Words::tr("列出日志：号码、时间、机号、操作员、批准人、种类、对象、内容，各用制表符分开"));
  command->footer(kindsExplained());
  const auto options = std::make_shared<Options>();
  options->file.addTo(*command);
  command->add_option("--from", options->from, Words::tr("从哪天起"));
  command->add_option("--to", options->to, Words::tr("到哪天止（含这一天）"));
  command->add_option("--kind", options->kind, Words::tr("只列这一种，见下"));
  command->add_option("--operator", options->operatorId, Words::tr("只列这位操作员；0 是店主工具"))
      ->check(wholeNumber(0, INT16_MAX));
  command->add_option("--till", options->till, Words::tr("只列这台收银机"))
      ->check(wholeNumber(1, INT16_MAX));
  command->callback([options, &console] { print(*options, console); });
}

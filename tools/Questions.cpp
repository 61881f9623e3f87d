#include "tools/Questions.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"

std::string Questions::ask(const std::string& question, const std::string& byDefault,
                           const Check& refusal) {
  for (;;) {
    console_.err << question;
    if (!byDefault.empty()) console_.err << " [" << byDefault << "]";
    console_.err << Words::tr("：") << std::flush;
    std::string line;
    if (!std::getline(console_.in, line))
      throw AnswersEnded(Words::tr("\n没有答完，什么也没有建立。"));
    if (!console_.isTerminal) console_.err << '\n';
    std::string answer = trimmed(line);
    if (answer.empty()) answer = byDefault;
    const std::string refused = refusal(answer);
    if (refused.empty()) return answer;
    say(refused);
  }
}

std::size_t Questions::choose(const std::string& question, const std::vector<std::string>& answers,
                              std::size_t byDefault) {
  std::string text = question.empty() ? "" : Words::tr("%1：", question);
  for (std::size_t i = 0; i < answers.size(); ++i)
    text += (i == 0 ? "" : Words::tr("，")) + std::to_string(i + 1) + " " + answers[i];
  const auto refusal = [&](const std::string& answer) {
    const auto number = parseWhole16(answer);
    if (number && *number >= 1 && *number <= std::ssize(answers) &&
        std::to_string(*number) == answer)
      return std::string();
    return Words::tr("请写 1 到 %1。", answers.size());
  };
  return std::stoul(ask(text, std::to_string(byDefault + 1), refusal)) - 1;
}

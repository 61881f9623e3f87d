#include "MonkeyWords.h"

namespace {

const char* const kTexts[] = {"0",    "1",           "2",
                              "5",    "10",          "100",
                              "0.5",  "1.25",        "0.9",
                              "-1",   "-3",          "1e9",
                              "9999", "99999999999", "0.00001",
                              "１２", "' or '1'='1", "%",
                              "_",    "\"",          "--",
                              "牛奶", "周",          "𠮷野家",
                              "é",    "a b",         ";880001?",
                              ".",    "-",           "1.2.3",
                              "NaN",  "&amp;<b>",    "x=1;drop table sell"};

struct Phrase {
  const char* window;
  const char* keys;
};
constexpr Phrase kPhrases[] = {{"frmSell", "*\n"},
                               {"frmSell", "*\n*\n"},
                               {"frmSell", "*\n*\n*\n\n"},
                               {"frmEndSell", "1000\n"},
                               {"frmEndSell", "\t0.5\t3\t2\n50\n"},
                               {"frmEndSell", "\t\t\t\t880001\n1111\n"},
                               {"dlgApproval", "1\n111\n"},
                               {"dlgApproval", "3\n333\n"},
                               {"dlgCash", "200\n"},
                               {"dlgCash", "20\n*\n"},
                               {"dlgCashCount", "1\t2\t#\t\t#\t\t\t\t\n"},
                               {"dlgShiftSheet", "\n"},
                               {"frmShift", "vvvv\n"},
                               {"frmInput", "880001\n"},
                               {"frmInput", "3.5\n"},
                               {"myMenu", "v\n"},
                               {"myMenu", "vv\n"},
                               {"frmUnSell", "#\n"},
                               {"frmUnSell", "#\n\tv\n1\n\n"},
                               {"cardStored", "880002\n50\n60\n\t\n\n"},
                               {"cardStored", "880003\n#\n#\n\t\n\n"}};

}  // namespace

QStringList monkeyTexts() {
  QStringList texts;
  for (const char* text : kTexts) texts << QString::fromUtf8(text);
  return texts;
}

std::vector<const char*> monkeyPhrases(const QString& window) {
  std::vector<const char*> known;
  for (const Phrase& phrase : kPhrases) {
    if (window == QLatin1String(phrase.window)) known.push_back(phrase.keys);
  }
  return known;
}

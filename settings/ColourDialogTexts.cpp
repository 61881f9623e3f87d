#include "settings/ColourDialogTexts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Text {
  std::string_view original;
  const char* chinese;
};

constexpr std::array kTexts = {
    Text{"Select Color", "选择颜色"},
    Text{"&Basic colors", "基本颜色(&B)"},
    Text{"&Custom colors", "自定义颜色(&C)"},
    Text{"&Add to Custom Colors", "加入自定义颜色(&A)"},
    Text{"&Pick Screen Color", "屏幕取色(&P)"},
    Text{"Hu&e:", "色调(&E)："},
    Text{"&Sat:", "饱和度(&S)："},
    Text{"&Val:", "亮度(&V)："},
    Text{"&Red:", "红(&R)："},
    Text{"&Green:", "绿(&G)："},
    Text{"Bl&ue:", "蓝(&U)："},
    Text{"&HTML:", "&HTML："},
    Text{"Cursor at %1, %2\nPress ESC to cancel", "光标位置 %1, %2\n按 ESC 取消"},
    Text{"OK", "确定"},
    Text{"&OK", "确定(&O)"},
    Text{"Cancel", "取消"},
    Text{"&Cancel", "取消(&C)"},
};

constexpr std::array<std::string_view, 2> kContexts = {"QColorDialog", "QPlatformTheme"};

}  // namespace

QString ColourDialogTexts::translate(const char* context, const char* sourceText,
                                     const char* /*disambiguation*/, int /*n*/) const {
  if (std::ranges::find(kContexts, std::string_view(context)) == kContexts.end()) return {};
  const auto found = std::ranges::find(kTexts, std::string_view(sourceText), &Text::original);
  return found == kTexts.end() ? QString() : QString::fromUtf8(found->chinese);
}

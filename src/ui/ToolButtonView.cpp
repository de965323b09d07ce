#include "ui/ToolButtonView.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array pictures{"install", "documentation", "shortcut",   "edit-log",      "engine-log",
                              "iwads",   "font",          "zip-folder", "model-cleanup", "texture-folder"};

} // namespace

ToolButtonView::ToolButtonView(int tool, QWidget* parent) : QToolButton(parent)
{
    constexpr QSize pictureSize(24, 24), buttonSize(32, 28);
    const QLatin1StringView picture(pictures.at(static_cast<size_t>(tool)));
    setIcon(QIcon(u":/toolbar/"_s + picture + u".png"_s));
    setIconSize(pictureSize);
    setFixedSize(buttonSize);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setFocusPolicy(Qt::TabFocus); // a click leaves no focus mark
}

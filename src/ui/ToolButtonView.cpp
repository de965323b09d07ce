#include "ui/ToolButtonView.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array pictures{"install", "documentation", "shortcut",   "edit-log",      "engine-log",
                              "iwads",   "font",          "zip-folder", "model-cleanup", "texture-folder"};

} // namespace

ToolButtonView::ToolButtonView(int tool, QWidget* parent) : QToolButton(parent), m_tool(tool)
{
    constexpr QSize pictureSize(24, 24), buttonSize(32, 28);
    setIconSize(pictureSize);
    setFixedSize(buttonSize);
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setFocusPolicy(Qt::TabFocus); // a click leaves no focus mark
}

void ToolButtonView::showEvent(QShowEvent* event)
{
    if (icon().isNull()) // most tools are hidden at start-up, and their pictures cost time to read
        setIcon(
            QIcon(u":/toolbar/"_s + QLatin1StringView(pictures.at(static_cast<size_t>(m_tool))) + u".png"_s));
    QToolButton::showEvent(event);
}

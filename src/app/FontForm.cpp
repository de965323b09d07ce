#include "app/FontForm.h"

#include "app/FontChoice.h"
#include "platform/Paths.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int bold = 1; // in the list of styles

// Selects the entry that is this text, or none.
void select(QListWidget* list, const QString& text)
{
    const QList<QListWidgetItem*> found = list->findItems(text, Qt::MatchFixedString);
    list->setCurrentItem(found.value(0));
}

} // namespace

FontForm::FontForm(Launcher& launcher, QWidget* parent)
    : QDialog(parent), m_launcher(launcher), m_choice(launcher.font), m_preview(new QLabel(u"Preview"_s))
{
    constexpr int previewHeight = 48;
    setObjectName(u"FontForm"_s);
    setWindowTitle(u"Launcher font"_s);
    if (m_choice.FontName.isEmpty())
        m_choice.FontName = u"MS Sans Serif"_s;

    auto* lists = new QHBoxLayout;
    m_fonts = addList(lists, u"ListFont"_s, u" Font:"_s, 170);
    m_styles = addList(lists, u"ListStyle"_s, u" Style:"_s, 100);
    m_sizes = addList(lists, u"ListSize"_s, u" Size:"_s, 70);
    for (const LauncherFont& font : LauncherFonts())
        m_fonts->addItem(font.name);
    m_styles->addItems({u"Regular"_s, u"Bold"_s});
    select(m_fonts, m_choice.FontName);
    m_styles->setCurrentRow(m_choice.FontBold ? bold : 0);
    LoadSizeList();

    m_preview->setObjectName(u"PreviewLabel"_s);
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setMinimumHeight(previewHeight);
    auto* box = new QGroupBox;
    box->setObjectName(u"PreviewBox"_s);
    auto* inBox = new QVBoxLayout(box);
    inBox->addWidget(m_preview);
    PreviewFont();

    connect(m_fonts, &QListWidget::currentTextChanged, this, [this](const QString& name) {
        m_choice.FontName = name;
        LoadSizeList();
        PreviewFont();
    });
    connect(m_styles, &QListWidget::currentRowChanged, this, [this](int style) {
        m_choice.FontBold = style == bold;
        LoadSizeList();
        PreviewFont();
    });
    connect(m_sizes, &QListWidget::currentTextChanged, this, [this](const QString& size) {
        if (!size.isEmpty())
            m_choice.FontSize = size.toInt();
        PreviewFont();
    });

    auto* buttons = new QHBoxLayout;
    const struct
    {
        QString caption;
        std::function<void()> pressed;
    } commands[] = {
        {u"Default"_s,
         [this] {
             UseDefaultFont(m_launcher);
             accept();
         }},
        {u"OK"_s,
         [this] {
             UseFont(m_launcher, m_choice);
             accept();
         }},
        {u"Cancel"_s, [this] { reject(); }},
    };
    for (int i = 0; i < 3; ++i) {
        auto* button = new QPushButton(commands[i].caption);
        button->setObjectName(u"FontBut_"_s + QString::number(i));
        button->setDefault(i == 1);
        connect(button, &QPushButton::clicked, this, commands[i].pressed);
        buttons->addWidget(button);
        if (i == 0)
            buttons->addStretch();
    }

    auto* rows = new QVBoxLayout(this);
    rows->addLayout(lists);
    rows->addWidget(box);
    rows->addLayout(buttons);
    m_fonts->setFocus();
}

QListWidget* FontForm::addList(QBoxLayout* row, const QString& name, const QString& caption, int width)
{
    constexpr int height = 150;
    auto* list = new QListWidget;
    list->setObjectName(name);
    list->setAccessibleName(caption.trimmed().chopped(1));
    list->setFixedSize(width, height);
    auto* column = new QVBoxLayout;
    column->addWidget(new QLabel(caption));
    column->addWidget(list);
    row->addLayout(column);
    return list;
}

void FontForm::LoadSizeList()
{
    const QSignalBlocker quiet(m_sizes); // an emptied list is no choice
    m_sizes->clear();
    for (const LauncherFont& font : LauncherFonts())
        if (SameName(font.name, m_choice.FontName))
            for (const int size : font.sizes)
                m_sizes->addItem(QString::number(size));
    select(m_sizes, QString::number(m_choice.FontSize));
}

void FontForm::PreviewFont()
{
    constexpr int usualSize = 8;
    m_preview->setFont(QFont(m_choice.FontName, m_choice.FontSize == 0 ? usualSize : m_choice.FontSize,
                             m_choice.FontBold ? QFont::Bold : QFont::Normal));
}

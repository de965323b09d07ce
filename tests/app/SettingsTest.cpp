#include "app/SettingsLoad.h"
#include "app/ShowAll.h"
#include "tests/support/LauncherFixture.h"

using namespace Qt::StringLiterals;
using Kind = FileError::Kind;

namespace {

const QString corruptText = u" The Launcher has detected a configuration error, the default  \r\n"
                            " settings will be reset, please reconfigure launcher settings. "_s;

// The values of the lines 2 to 81; an empty one is an empty text.
const char* const defaults =
    "2|0|0|128|0|1|0|0|0|0|0|0|0|0|0|1|0|0|0|0|200||1|0|1|0|1|0|0|1|1|0|0|0|1|0|0|1|1|0|"
    "1|0|0|0|0|0|0|0|0|0|0|1|||||||1|0|1|0|0|1|0|0|1|0|0|0|1||9|4|2|1|1|0|1|";

QStringList defaultLines()
{
    QStringList lines{u"v9.1"_s};
    for (const QString& value : QString::fromLatin1(defaults).split(u'|'))
        lines << (value.isEmpty() ? value : u' ' + value + u' ');
    return lines;
}

QList<int> changedLines(const QStringList& before, const QStringList& after)
{
    QList<int> changed;
    for (int i = 0; i < before.size(); ++i)
        if (before.at(i) != after.value(i))
            changed << i + 1;
    return changed;
}

} // namespace

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Alone, each line is read and written as itself: no two lines share or swap a setting.
    void everyLineIsItsOwn()
    {
        const QStringList before = SettingsLines(DefaultSettings(), true);
        for (int line = 1; line <= before.size(); ++line) {
            QStringList lines = before;
            QString& value = lines[line - 1];
            const bool isText = !value.endsWith(u' ');
            value = isText ? u"a \"b\", %1 c"_s : value == u" 0 "_s ? u" 1 "_s : u" 0 "_s;
            Settings settings = DefaultSettings();
            QCOMPARE(ReadSettings(settings, lines, true), ReadResult::Complete);
            const QList<int> changed = line == 29 ? QList<int>{} : line == 46 ? QList{29, 46} : QList{line};
            QCOMPARE(changedLines(before, SettingsLines(settings, true)), changed);
        }
    }

    void numbers()
    {
        using enum ReadResult;
        const struct
        {
            int line;
            const char16_t* text;
            ReadResult result;
            const char16_t* stored; // what the next save writes
        } rows[] = {
            {43, u"-1", Complete, u" 1 "},
            {43, u"0.5", Complete, u" 0 "},
            {40, u"", Corrupt, u" 1 "},
            {43, u"32768", Faulty, u" 0 "},
            {75, u" 1 2 ", Complete, u" 12 "},
            {75, u"-9.1", Complete, u"-10 "},
            {75, u"2e3", Complete, u" 2000 "},
            {75, u"-32768", Complete, u"-32768 "},
            {75, u"-32769", Faulty, u" 4 "},
            {75, u"1e999", Faulty, u" 4 "},
            {75, u"nan", Corrupt, u" 4 "},
            {75, u"0x10", Corrupt, u" 4 "},
            {83, u"-70000", Complete, u"-70000 "},
            {4, u"2147483648", Faulty, u" 0 "},
        };
        for (const auto& row : rows) {
            QStringList lines = SettingsLines(DefaultSettings(), true);
            lines[1] = u"3"_s; // above the line: is read
            lines[row.line - 1] = QString::fromUtf16(row.text);
            if (row.line < 81)
                lines[80] = u"below"_s; // is read when nothing stopped before
            Settings settings = DefaultSettings();
            QCOMPARE(ReadSettings(settings, lines, true), row.result);
            QCOMPARE(SettingsLines(settings, true).at(row.line - 1), QString::fromUtf16(row.stored));
            QCOMPARE(settings.LastSkill, 3);
            QCOMPARE(settings.ReservedText81 == u"below"_s, row.line < 81 && row.result != Corrupt);
        }
    }

    void roundTripKeepsEveryByte()
    {
        for (const QString& name : {u"Größe 100 % %1 %n \"quoted\" café – €"_s, u"Łódź Дум %2"_s}) {
            LauncherFixture f;
            QMap<int, QString> changed{{82, u" 40 "_s}, {83, u"-5 "_s}};
            for (const int line : {23, 54, 55, 56, 57, 58, 59, 73, 81})
                changed[line] = name;
            const QByteArray before = f.configWith(changed);
            f.setConfig(before);
            LoadSettings(f.launcher);
            QCOMPARE(f.launcher.settings.CustomText, name);
            SaveSettings(f.launcher);
            QCOMPARE(f.config(), before);
        }
    }

    void shortFile()
    {
        LauncherFixture f;
        f.setConfig("v9.1\r\n");
        LoadSettings(f.launcher);
        QCOMPARE(SettingsLines(f.launcher.settings, false), defaultLines());
        QCOMPARE(f.launcher.settings.WindowTop, Settings::unknownPosition);
        QCOMPARE(f.launcher.settings.WindowLeft, Settings::unknownPosition);
        SaveSettings(f.launcher);
        QCOMPARE(f.config().count("\r\n"), 83);
    }

    void limits()
    {
        const struct
        {
            int line, inFile, used;
        } rows[] = {{76, 9, 7},     {76, -3, 0}, {76, 7, 7}, {22, 300, 200}, {22, 256, 200},
                    {22, 255, 255}, {2, 0, 2},   {2, 6, 2},  {33, 2, 0},     {34, -1, 0},
                    {52, 6, 0},     {53, 3, 1},  {60, 3, 1}, {60, 2, 1}}; // 2 needs advanced options
        for (const auto& [line, inFile, used] : rows) {
            LauncherFixture f;
            f.setConfig(f.configWith({{line, QString::number(inFile)}}));
            LoadSettings(f.launcher);
            SaveSettings(f.launcher);
            QCOMPARE(f.config().split('\n').at(line - 1).trimmed(), QByteArray::number(used));
        }
    }

    // What a player can type or paste must not cost the lines below it at the next start, and a number that
    // a list does not offer stays.
    void savedFilesCanBeRead()
    {
        LauncherFixture f;
        f.setConfig(f.configWith({{5, u" 48 "_s}}));
        LoadSettings(f.launcher);
        ShowWindow(f.launcher);
        const auto type = [](TextBox& box, const QString& text) {
            box.text = text;
            box.typed();
        };
        type(f.launcher.controls.LightText, u"70000"_s);
        type(f.launcher.controls.edCustom, u"-warp\r\n1"_s);
        f.launcher.settings.SelectedGame = u"two\nlines"_s;
        f.launcher.settings.PlaylistName = u"kept"_s;
        SaveSettings(f.launcher);
        LoadSettings(f.launcher);
        QCOMPARE(f.launcher.settings.PlaylistName, u"kept"_s);
        QCOMPARE(f.launcher.settings.CustomText, u"-warp  1"_s);
        QCOMPARE(f.launcher.settings.AudioChannels, 48);
    }

    // A number out of range costs its own line, and the file is there as it was.
    void faultyFile()
    {
        LauncherFixture f;
        const QByteArray faulty = f.configWith({{5, u"70000"_s}, {73, u"kept"_s}});
        f.setConfig(faulty);
        LoadSettings(f.launcher);
        QCOMPARE(f.launcher.settings.AudioChannels, 128);
        QCOMPARE(f.launcher.settings.PlaylistName, u"kept"_s);
        SaveSettings(f.launcher);
        QCOMPARE(f.installation.read(u"VYKLaunch/config.vyk.bak"_s), faulty);
        LoadSettings(f.launcher);
        QVERIFY(!f.installation.exists(u"VYKLaunch/config.vyk.bak2"_s));

        f.setConfig(faulty); // where it cannot be kept, the launcher starts all the same
        f.files.failOn(u".bak"_s, Kind::PermissionDenied);
        LoadSettings(f.launcher);
        QCOMPARE(f.launcher.settings.PlaylistName, u"kept"_s);
    }

    void corruptFile()
    {
        LauncherFixture f;
        const QByteArray corrupt = f.configWith({{2, u"4"_s}, {83, u"abc\xE4"_s}}) + "\0\x80 rest"_ba;
        f.setConfig(corrupt);
        f.installation.add(u"VYKLaunch/config.vyk.bak"_s, "an earlier one");
        f.prompts.expectMessage();
        LoadSettings(f.launcher);
        QCOMPARE(f.prompts.texts, {corruptText});
        QCOMPARE(f.prompts.titles, {u" Configuration error detected"_s});
        QCOMPARE(f.prompts.styles, {4096});
        QVERIFY(!f.hasConfig());
        QCOMPARE(f.installation.read(u"VYKLaunch/config.vyk.bak"_s), "an earlier one");
        QCOMPARE(f.installation.read(u"VYKLaunch/config.vyk.bak2"_s), corrupt);
        QCOMPARE(f.window.topLeft, QPoint(490, 230));
        QCOMPARE(f.processes.starts.size(), 1);
        QCOMPARE(f.processes.lastCommandLine(), u'"' + f.path(u"bin/VYKlauncher.exe"_s) + u"\" /RESTART"_s);
        QVERIFY(f.launcher.startUp.ShuttingDown && f.launcher.startUp.VersionUpdate);
        QCOMPARE(f.window.calls, QStringList({u"hide"_s, u"endProgram"_s}));
        QCOMPARE(SettingsLines(f.launcher.settings, false), defaultLines());
    }

    void font()
    {
        const struct
        {
            const char* line;
            QString name;
            int size;
            bool bold;
        } rows[] = {{"Tahoma,10,B", u"Tahoma"_s, 10, true},
                    {"DejaVu Sans,9,b\r\n", u"DejaVu Sans"_s, 9, true},
                    {"Tahoma,10", u"Tahoma"_s, 10, false},
                    {"Tahoma", u"Tahoma"_s, 0, false},
                    {"", {}, 0, false}};
        LauncherFixture f;
        const QString path = f.path(u"font.vyk"_s);
        QVERIFY(!LoadFontSetting(f.files, path).CustomFontOn);
        for (const auto& row : rows) {
            f.installation.add(u"font.vyk"_s, row.line);
            const FontSetting font = LoadFontSetting(f.files, path);
            QCOMPARE(font.CustomFontOn, !row.name.isEmpty());
            QCOMPARE(font.FontName, row.name);
            QCOMPARE(font.FontSize, row.size);
            QCOMPARE(font.FontBold, row.bold);
        }
    }
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "SettingsTest.moc"

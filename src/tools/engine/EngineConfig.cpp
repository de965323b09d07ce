#include "tools/engine/EngineConfig.h"

#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Where the engine keeps the player's own files: his data folder or, on Windows, beside the program.
QStringList playersFolders(const QString& program, const QString& name,
                           const QProcessEnvironment& environment)
{
    QStringList folders;
    if (const QString data = environment.value(u"XDG_DATA_HOME"_s); !data.isEmpty())
        folders += WithSlashes(data) + u'/' + name;
    if (const QString home = environment.value(u"HOME"_s); !home.isEmpty())
        folders += home + u"/.local/share/"_s + name;
    return folders + QStringList{FolderOf(program)};
}

void seed(FileSystem& files, const QString& path, const QStringList& folders)
{
    if (files.fileExists(path))
        return;
    for (const QString& folder : folders)
        if (const QString own = folder + u'/' + FileNameOf(path); files.fileExists(own)) {
            files.copy(own, path);
            return;
        }
}

auto isLineOf(const QString& name)
{
    return [key = name.toLatin1()](const QByteArray& line) {
        return line.startsWith(key) && (line.size() == key.size() || std::isspace(line[key.size()]));
    };
}

// A file of lines, each a name, blanks and a value.
class SettingLines
{
public:
    SettingLines(const FileSystem& files, const QString& path)
    {
        if (files.fileExists(path))
            m_lines = files.read(path).split('\n');
        if (!m_lines.isEmpty() && m_lines.last().isEmpty())
            m_lines.removeLast();
    }

    QByteArray value(const QString& name) const
    {
        const auto line = std::ranges::find_if(m_lines, isLineOf(name));
        return line == m_lines.end() ? QByteArray() : line->sliced(name.size()).trimmed();
    }

    // No value removes the line.
    void set(const QString& name, const QByteArray& value)
    {
        const auto line = std::ranges::find_if(m_lines, isLineOf(name));
        const QByteArray text = name.toLatin1().leftJustified(30) + value;
        if (line == m_lines.end() && !value.isNull())
            m_lines += text;
        else if (line != m_lines.end() && value.isNull())
            m_lines.erase(line);
        else if (line != m_lines.end())
            *line = text;
    }

    QStringList names() const
    {
        QStringList names;
        for (const QByteArray& line : m_lines)
            names += QString::fromLatin1(line.simplified().split(' ').first());
        return names;
    }

    QByteArray text() const { return m_lines.isEmpty() ? QByteArray() : m_lines.join('\n') + '\n'; }

private:
    QList<QByteArray> m_lines;
};

// The engines keep this one in their second file, all others in the first.
bool isInSecond(const QString& name)
{
    return name == u"music_pack_path"_s;
}

void writeIfChanged(FileSystem& files, const QString& path, const SettingLines& before,
                    const SettingLines& after)
{
    if (before.text() != after.text())
        files.write(path, after.text());
}

} // namespace

QStringList PrepareEngineConfig(FileSystem& files, const QString& root, const QString& program,
                                const KnownEngine& engine, const QProcessEnvironment& environment,
                                const QList<EngineSetting>& needed)
{
    if (engine.secondConfig.isEmpty())
        return {};
    const QString name = engine.program.toString();
    const QString folder = root + u"/VYKLaunch/Engines/"_s + name;
    const QString first = folder + u"/default.cfg"_s;
    const QString second = folder + u'/' + engine.secondConfig.toString();
    const QString kept = folder + u"/changed.cfg"_s; // the player's values of what was changed, '-' for none
    files.createFolder(folder);
    for (const QString& path : {first, second})
        seed(files, path, playersFolders(program, name, environment));

    SettingLines inFirst(files, first), inSecond(files, second), changed(files, kept);
    const SettingLines firstBefore = inFirst, secondBefore = inSecond, changedBefore = changed;
    const auto fileOf = [&](const QString& setting) -> SettingLines& {
        return isInSecond(setting) ? inSecond : inFirst;
    };
    const QByteArray none("-");
    for (const QString& setting : changed.names()) {
        const QByteArray players = changed.value(setting);
        fileOf(setting).set(setting, players == none ? QByteArray() : players);
        changed.set(setting, {});
    }
    for (const EngineSetting& setting : needed) {
        const QByteArray players = fileOf(setting.name).value(setting.name);
        changed.set(setting.name, players.isEmpty() ? none : players);
        fileOf(setting.name).set(setting.name, setting.value);
    }
    // What the player had is safe before it is replaced.
    writeIfChanged(files, kept, changedBefore, changed);
    writeIfChanged(files, first, firstBefore, inFirst);
    writeIfChanged(files, second, secondBefore, inSecond);
    return {u"-config"_s, NativePath(first), u"-extraconfig"_s, NativePath(second)};
}

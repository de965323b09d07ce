#include "platform/Paths.h"
#include "platform/Shortcuts.h"

#include <objbase.h>
#include <objidl.h>
#include <shlobj.h>
#include <stdexcept>
#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

struct Release
{
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Object = std::unique_ptr<Interface, Release>;

// The objects' own library, in use while this lives.
class Library
{
public:
    Library() : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~Library()
    {
        if (SUCCEEDED(m_result))
            CoUninitialize();
    }
    Q_DISABLE_COPY_MOVE(Library)

private:
    HRESULT m_result;
};

void require(HRESULT result, const QString& path)
{
    if (FAILED(result))
        throw FileError(FileError::Kind::Other, path, qt_error_string(static_cast<int>(result)));
}

std::wstring nativeText(const QString& path)
{
    return NativePath(path).toStdWString();
}

// The stream's whole contents.
QByteArray contentsOf(IStream& stream, const QString& path)
{
    HGLOBAL memory = nullptr;
    require(GetHGlobalFromStream(&stream, &memory), path);
    STATSTG status = {};
    require(stream.Stat(&status, STATFLAG_NONAME), path);
    const auto* bytes = static_cast<const char*>(GlobalLock(memory));
    QByteArray contents(bytes, static_cast<qsizetype>(status.cbSize.QuadPart));
    GlobalUnlock(memory);
    return contents;
}

// As the shell's own object writes it: it knows the target's volume and its place in the shell.
QByteArray linkBytes(const Shortcut& shortcut, const QString& path)
{
    const Library library;
    void* created = nullptr;
    require(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &created),
            path);
    const Object<IShellLinkW> link(static_cast<IShellLinkW*>(created));
    constexpr int maximised = SW_SHOWMAXIMIZED;
    constexpr int minimised = SW_SHOWMINNOACTIVE;
    const bool known = shortcut.windowStyle == maximised || shortcut.windowStyle == minimised;
    require(link->SetPath(nativeText(shortcut.target).c_str()), path);
    require(link->SetArguments(shortcut.arguments.toStdWString().c_str()), path);
    require(link->SetWorkingDirectory(nativeText(shortcut.workingDirectory).c_str()), path);
    require(link->SetIconLocation(nativeText(shortcut.target).c_str(), 0), path);
    require(link->SetShowCmd(known ? shortcut.windowStyle : SW_SHOWNORMAL), path);

    void* persistent = nullptr;
    require(link->QueryInterface(IID_IPersistStream, &persistent), path);
    const Object<IPersistStream> saved(static_cast<IPersistStream*>(persistent));
    IStream* memory = nullptr;
    require(CreateStreamOnHGlobal(nullptr, TRUE, &memory), path);
    const Object<IStream> stream(memory);
    require(saved->Save(stream.get(), TRUE), path);
    return contentsOf(*stream, path);
}

} // namespace

void WriteShortcut(FileSystem& files, const Shortcut& shortcut)
{
    constexpr qsizetype longestText = 65535; // of a text in the file
    if (shortcut.arguments.size() > longestText)
        throw std::length_error("the arguments are too long for a shortcut");
    const QString path = shortcut.folder + u'/' + shortcut.name + u".lnk"_s;
    // Written under its own name, the file that the link leads to would be the one replaced.
    const QString unnamed = path + u".new"_s;
    files.write(unnamed, linkBytes(shortcut, path));
    try {
        files.move(unnamed, path);
    } catch (const FileError&) {
        files.remove(unnamed);
        throw;
    }
}

void RefreshDesktop()
{
    // The command that F5 gives the desktop's view.
    constexpr WPARAM refresh = 28931;
    const HWND manager = FindWindowW(L"Progman", L"Program Manager");
    const HWND view = manager ? FindWindowExW(manager, nullptr, L"SHELLDLL_DefView", nullptr) : nullptr;
    if (view)
        PostMessageW(view, WM_COMMAND, refresh, 0);
}

#include "platform/SingleInstance.h"

#include <QCryptographicHash>
#include <QTimer>
#include <chrono>
#include <utility>
#include <windows.h>

// The place is a named mutex, which ends with its process. The holder has a window that only receives
// messages, of the same name; it answers the one that asks for the launcher's window.

namespace {

using namespace std::chrono_literals;

constexpr auto retryTime = 200ms;
constexpr UINT answerTime = 2000; // milliseconds
constexpr UINT askForWindow = WM_APP;
constexpr LRESULT answered = 1;
constexpr wchar_t windowClass[] = L"VYKLauncherPlace";

struct CloseAny
{
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, CloseAny>;

struct CloseWindowOf
{
    using pointer = HWND;
    void operator()(HWND window) const { DestroyWindow(window); }
};
using Window = std::unique_ptr<HWND, CloseWindowOf>;

std::wstring NameOf(const QString& key)
{
    const QByteArray hash =
        QCryptographicHash::hash(key.toCaseFolded().toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStringLiteral("VYKLauncher-").toStdWString() + QString::fromLatin1(hash).toStdWString();
}

} // namespace

struct SingleInstance::System
{
    std::wstring name;
    Handle place;
    Window window;
    QTimer retry;
    std::function<void()> activated;

    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wide, LPARAM with)
    {
        auto* system = reinterpret_cast<System*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message != askForWindow || !system)
            return DefWindowProcW(window, message, wide, with);
        const auto run = system->activated; // it may replace itself through `claim`
        run();
        return answered;
    }

    void listen()
    {
        WNDCLASSW kind = {};
        kind.lpfnWndProc = &System::receive;
        kind.hInstance = GetModuleHandleW(nullptr);
        kind.lpszClassName = windowClass;
        RegisterClassW(&kind); // done once; again it fails and changes nothing
        window.reset(CreateWindowExW(0, windowClass, name.c_str(), 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                     kind.hInstance, nullptr));
        if (window)
            SetWindowLongPtrW(window.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
};

SingleInstance::SingleInstance(const QString& key) : m_system(std::make_unique<System>())
{
    m_system->name = NameOf(key);
    m_system->retry.setInterval(retryTime);
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::claim(std::function<void()> activated)
{
    if (!m_system->place) {
        // Its own in the user's session; it need not be owned, that it exists is enough.
        Handle place(CreateMutexW(nullptr, FALSE, m_system->name.c_str()));
        if (GetLastError() == ERROR_ALREADY_EXISTS || !place)
            return false;
        m_system->retry.stop();
        m_system->place = std::move(place);
        m_system->listen();
    }
    m_system->activated = std::move(activated);
    return true;
}

void SingleInstance::claimWhenFree(std::function<void()> activated)
{
    if (claim(activated))
        return;
    m_system->retry.disconnect();
    connect(&m_system->retry, &QTimer::timeout, this, [this, activated] { claim(activated); });
    m_system->retry.start();
}

bool SingleInstance::activateRunning()
{
    const HWND running = FindWindowExW(HWND_MESSAGE, nullptr, windowClass, m_system->name.c_str());
    if (!running)
        return false;
    // Only the program that the player has just started may hand on the right to come to the front.
    DWORD process = 0;
    GetWindowThreadProcessId(running, &process);
    AllowSetForegroundWindow(process);
    DWORD_PTR answer = 0;
    return SendMessageTimeoutW(running, askForWindow, 0, 0, SMTO_ABORTIFHUNG, answerTime, &answer) != 0 &&
           answer == answered;
}

#include "platform/SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

// The place is a socket in the abstract name space, which ends with its process: nothing stale can
// remain. A connection asks for the window; the holder answers one byte.

namespace {

using namespace std::chrono_literals;

constexpr auto answerTime = 2s;
constexpr auto retryTime = 200ms;
constexpr int backlog = 16;

// A file descriptor that closes itself.
class Socket
{
public:
    explicit Socket(int descriptor) : m_descriptor(descriptor) {}
    Socket(Socket&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    Socket& operator=(Socket&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~Socket()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }

private:
    int m_descriptor;
};

Socket NewSocket()
{
    return Socket(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

// Any user may take or connect to an abstract name, so both ends look who the other is.
bool IsSameUser(const Socket& peer)
{
    ucred credentials = {};
    socklen_t size = sizeof credentials;
    return getsockopt(peer.get(), SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0 &&
           credentials.uid == getuid();
}

struct Address
{
    sockaddr_un name = {};
    socklen_t size = 0;

    const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&name); }
};

Address AddressOf(const QString& key)
{
    const QByteArray text = "VYKLauncher-" + QByteArray::number(getuid()) + '-' +
                            QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256).toHex();
    Address address;
    address.name.sun_family = AF_UNIX;
    std::ranges::copy(text, address.name.sun_path + 1); // after the zero byte that makes it abstract
    address.size =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<size_t>(text.size()));
    return address;
}

} // namespace

struct SingleInstance::System
{
    Address address;
    Socket listening{-1};
    std::unique_ptr<QSocketNotifier> notifier; // ends before the socket that it watches
    QTimer retry;
    std::function<void()> activated;

    // Answers every waiting connection; several at once ask for the window once.
    void answer()
    {
        bool asked = false;
        for (;;) {
            const Socket peer(accept4(listening.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
            if (!peer.isOpen())
                break;
            if (!IsSameUser(peer))
                continue;
            send(peer.get(), "!", 1, MSG_NOSIGNAL);
            asked = true;
        }
        if (!asked)
            return;
        const auto run = activated; // it may replace itself through `claim`
        run();
    }
};

SingleInstance::SingleInstance(const QString& key) : m_system(std::make_unique<System>())
{
    m_system->address = AddressOf(key);
    m_system->retry.setInterval(retryTime);
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::claim(std::function<void()> activated)
{
    if (m_system->listening.isOpen()) {
        m_system->activated = std::move(activated);
        return true;
    }
    Socket listening = NewSocket();
    if (bind(listening.get(), m_system->address.get(), m_system->address.size) != 0 && errno == EADDRINUSE)
        return false;
    m_system->retry.stop();
    m_system->activated = std::move(activated);
    // A system that has no such sockets must not keep the launcher from starting.
    if (listen(listening.get(), backlog) != 0)
        return true;
    m_system->listening = std::move(listening);
    m_system->notifier = std::make_unique<QSocketNotifier>(m_system->listening.get(), QSocketNotifier::Read);
    connect(m_system->notifier.get(), &QSocketNotifier::activated, this, [this] { m_system->answer(); });
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
    const QDeadlineTimer deadline(answerTime);
    const Socket running = NewSocket();
    if (::connect(running.get(), m_system->address.get(), m_system->address.size) != 0 ||
        !IsSameUser(running))
        return false;
    pollfd waiting = {running.get(), POLLIN, 0};
    int ready = 0;
    do
        ready = poll(&waiting, 1, static_cast<int>(deadline.remainingTime()));
    while (ready < 0 && errno == EINTR);
    char byte = 0;
    return ready == 1 && recv(running.get(), &byte, 1, 0) == 1;
}

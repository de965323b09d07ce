#include "platform/Termination.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

std::array<int, 2> ends = {-1, -1};

// A signal may come at any point of the program: all that is safe is to write.
void note(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(ends[0], &byte, 1);
}

} // namespace

void OnTermination(const std::function<void()>& end)
{
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0)
        return;
    auto* notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, end] {
        notifier->setEnabled(false);
        end();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, note);
}

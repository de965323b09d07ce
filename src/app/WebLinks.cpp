#include "app/WebLinks.h"

#include "launch/ShellOpen.h"

using namespace Qt::StringLiterals;

namespace {

const struct
{
    size_t picture; // Home
    const char16_t* address;
} links[] = {
    {0, u"https://keldrax.example/"},
    {3, u"https://keldrax.example/downloads"},
};

} // namespace

void ConnectWebLinks(Launcher& launcher)
{
    for (const auto& link : links)
        launcher.controls.Home[link.picture].clicked =
            [&launcher, address = QString::fromUtf16(link.address)] { ShellOpen(launcher.prompts, address); };
}

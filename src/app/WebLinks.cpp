#include "app/WebLinks.h"

#include "shell/ShellOpen.h"

using namespace Qt::StringLiterals;

namespace {

const struct
{
    Link picture;
    const char16_t* address;
} links[] = {
    {Link::Website, u"https://keldrax.example/"},
    {Link::Downloads, u"https://keldrax.example/downloads"},
};

} // namespace

void ConnectWebLinks(Launcher& launcher)
{
    for (const auto& link : links)
        launcher.controls.Home[link.picture].clicked =
            [&launcher, address = QString::fromUtf16(link.address)] { ShellOpen(launcher.prompts, address); };
}

#include "state/IwadPaths.h"

#include "platform/Paths.h"

#include <algorithm>

bool IwadPaths::anyKnown() const
{
    return std::ranges::any_of(Path, [](const QString& path) { return !path.isEmpty(); });
}

IwadEnvironment IwadEnvironment::ofProcess()
{
    const auto folder = [](const char* variable) {
        QString path = WithSlashes(qEnvironmentVariable(variable));
        while (path.size() > 1 && path.endsWith(u'/'))
            path.chop(1);
        return path;
    };
    return {folder("$DOOMWADDIR"), folder("DOOMWADDIR")};
}

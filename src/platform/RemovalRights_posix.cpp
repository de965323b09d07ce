#include "platform/RemovalRights.h"

void AllowRemoval(const std::filesystem::path& entry)
{
    using std::filesystem::perms;
    std::error_code error;
    if (is_directory(symlink_status(entry, error)))
        permissions(entry, perms::owner_all, std::filesystem::perm_options::add, error);
}

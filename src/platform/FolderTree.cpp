#include "platform/FolderTree.h"

#include "platform/RemovalRights.h"

namespace {

// Calls `visit` with every entry below `top`, a folder before what is in it.
template <class Visit>
void forEachBelow(const std::filesystem::path& top, const Visit& visit)
{
    std::error_code error;
    if (!is_directory(symlink_status(top, error)))
        return;
    constexpr auto options = std::filesystem::directory_options::skip_permission_denied;
    std::filesystem::recursive_directory_iterator entry(top, options, error);
    for (; entry != std::filesystem::recursive_directory_iterator(); entry.increment(error))
        visit(*entry);
}

void count(const std::filesystem::directory_entry& entry, TreeContents& sum)
{
    std::error_code error;
    const std::filesystem::file_status status = entry.symlink_status(error);
    ++(is_directory(status) ? sum.folders : sum.files);
    if (!is_regular_file(status))
        return;
    const std::uintmax_t size = entry.file_size(error);
    sum.bytes += error ? 0 : static_cast<qint64>(size);
}

} // namespace

TreeContents ContentsOf(const std::filesystem::path& top)
{
    TreeContents sum;
    std::error_code error;
    count(std::filesystem::directory_entry(top, error), sum);
    forEachBelow(top, [&sum](const std::filesystem::directory_entry& entry) { count(entry, sum); });
    return sum;
}

void AllowRemovalOfTree(const std::filesystem::path& top)
{
    AllowRemoval(top);
    forEachBelow(top, [](const std::filesystem::directory_entry& entry) { AllowRemoval(entry.path()); });
}

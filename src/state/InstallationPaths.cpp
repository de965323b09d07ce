#include "state/InstallationPaths.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

InstallationPaths::InstallationPaths(const QString& root)
    : RootPath(WithSlashes(root)),
      ArchivesPath(RootPath + u"/VYKArchives"_s),
      LaunchPath(RootPath + u"/VYKLaunch/"_s),
      LaunchDataPath(RootPath + u"/VYKLaunch/Data/"_s),
      MusicLaunchPath(RootPath + u"/VYKLaunch/Music/"_s),
      IconsPath(RootPath + u"/VYKLaunch/Icons/"_s),
      GamesPath(RootPath + u"/VYKGames/"_s),
      Md2Path(RootPath + u"/Md2/"_s),
      BaseDefsPath(RootPath + u"/Defs/Base/"_s),
      ModelDefsPath(RootPath + u"/Defs/Model/"_s),
      AddonDefsPath(RootPath + u"/Defs/Model/Addon/"_s),
      TovrensDefsPath(RootPath + u"/Defs/Model/Tovrens/"_s),
      KelspackDefsPath(RootPath + u"/Defs/Model/Kelspack/"_s),
      CustomDefsPath(RootPath + u"/Defs/Custom/"_s)
{
}

QString InstallationPaths::rootOf(const QString& programPath)
{
    return FolderOf(FolderOf(programPath));
}

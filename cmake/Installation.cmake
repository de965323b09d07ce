# What an installation holds: `cmake --install BUILD --prefix FOLDER` makes one that can be moved as a whole,
# `cpack` packs the same into an archive to unpack and start.

install(TARGETS VYKlauncher VYKplay VYKgFiles Keldrax RUNTIME DESTINATION Bin)

# The launcher checks that these libraries are there. An engine distribution brings the real ones.
foreach(library IN ITEMS
        "unzip32.dll|the zip library (this build uses libarchive)"
        "fmodex.dll|the engine's sound library (the engine that is started brings its own)")
    string(REPLACE "|" ";" library "${library}")
    list(GET library 0 name)
    list(GET library 1 what)
    file(WRITE ${CMAKE_BINARY_DIR}/stand-ins/${name} "Stands for ${what}: the launcher checks that this file is there.\n")
endforeach()
install(DIRECTORY ${CMAKE_BINARY_DIR}/stand-ins/ DESTINATION Bin)

install(DIRECTORY assets/VYKLaunch assets/VYK_Docs DESTINATION .)
install(DIRECTORY assets/icons/ DESTINATION VYKLaunch/Icons FILES_MATCHING PATTERN "*.png")
install(FILES LICENSE DESTINATION VYK_Docs)
foreach(folder IN ITEMS Data Iwads Engine Md2 OggVorbis UserSG VYKGames VYKArchives
        Defs/Base Defs/Model/Addon Defs/Model/Tovrens Defs/Model/Kelspack Defs/Custom
        VYKLaunch/GameInfo VYKLaunch/Music)
    install(DIRECTORY DESTINATION ${folder})
endforeach()

set(CPACK_GENERATOR TGZ)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
endif()
set(CPACK_PACKAGE_FILE_NAME "${PROJECT_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "A launcher for Doom players")
set(CPACK_STRIP_FILES ON)
include(CPack)

# The rooms of src from the ground up: an include never runs up, so no two rooms include each other.
set(floors platform engines ui state shell records wad start savegames catalogue iwads options music launch shortcuts
    app tools)
foreach(room IN LISTS floors)
    list(APPEND below ${room})
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${room}/*.h
        ${CMAKE_SOURCE_DIR}/src/${room}/*.cpp)
    foreach(file IN LISTS files)
        file(STRINGS ${file} includes REGEX "^#include \"[a-z]+/")
        foreach(include IN LISTS includes)
            string(REGEX REPLACE "^#include \"([a-z]+)/.*" "\\1" included "${include}")
            if(NOT included IN_LIST below)
                message(SEND_ERROR "${file}: ${include} runs up from ${room} to ${included}")
            endif()
        endforeach()
    endforeach()
endforeach()

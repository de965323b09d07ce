# What every target of the project is compiled with, as one interface target.

add_library(compile_settings INTERFACE)
target_compile_features(compile_settings INTERFACE cxx_std_23)
set(CMAKE_CXX_EXTENSIONS OFF)

option(VYK_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
option(VYK_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(VYK_FUZZ "Build the fuzzers, with Clang" OFF)

target_compile_options(compile_settings INTERFACE
    -Wall
    -Wextra
    -Wpedantic            # nothing that only this compiler takes
    -Wshadow              # a local that hides a member reads as the member
    -Wnon-virtual-dtor    # the interfaces are deleted through their base
    -Woverloaded-virtual  # a fake whose signature drifted overrides nothing
    -Wold-style-cast      # casts must be findable
    -Wcast-align
    -Wnull-dereference
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond>  # a rule pasted twice
    $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>
    -Wextra-semi
)
if(VYK_WARNINGS_AS_ERRORS)
    target_compile_options(compile_settings INTERFACE -Werror)
endif()
if(VYK_SANITIZE)
    target_compile_options(compile_settings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(compile_settings INTERFACE -fsanitize=address,undefined)
elseif(VYK_FUZZ)
    target_compile_options(compile_settings INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(compile_settings INTERFACE -fsanitize=address,undefined)
else()
    # The standard library's own checks of indexes and iterators, at next to no cost.
    target_compile_definitions(compile_settings INTERFACE _GLIBCXX_ASSERTIONS)
endif()

if(WIN32)
    # Programs that need nothing beside them; the names of version 10's interfaces, in their 16-bit form.
    target_link_options(compile_settings INTERFACE -static)
    target_compile_definitions(compile_settings INTERFACE _WIN32_WINNT=0x0A00 UNICODE _UNICODE NOMINMAX
        LIBARCHIVE_STATIC) # here, so that every file shares the precompiled headers
endif()

# Qt without its silent conversions: every text says which encoding it comes from.
add_library(strict_qt INTERFACE)
target_compile_definitions(strict_qt INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
)

# What nearly every file includes, read once: a file then compiles in a third of the time.
set(precompiled_headers
    <QByteArray> <QDateTime> <QHash> <QIODevice> <QList> <QString> <QStringList>
    <algorithm> <array> <functional> <memory> <optional> <utility> <vector>)

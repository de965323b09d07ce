#pragma once

#include "state/ControlNames.h"

#include <QStringList>

#include <optional>

// What the console program was asked for.
struct Arguments
{
    enum class Command { List, Maps, Play, Engines, Install, Integrate, Help };

    Command command = Command::Help;
    QString game; // of Maps and Play
    std::optional<View> view;
    QString root; // the installation; empty: the one the program lies in

    // Of Play.
    QString map, slot;
    bool newGame = false;
    int skill = 0; // 1 to 5; 0 as the settings say
    bool dryRun = false;
    QString engine; // a path, or an engine's name; empty for the usual one

    // Of Install.
    QStringList files;
    bool asGwad = false;

    bool remove = false; // of Integrate: undo it

    QString wrong; // what is wrong with the arguments; empty when nothing is
};

// `arguments` is without the program's name.
Arguments ParseArguments(const QStringList& arguments);

QString UsageText();

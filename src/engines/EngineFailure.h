#pragma once

#include <QString>
#include <stdexcept>

// Why the engine cannot be started, in words for the player (what() is UTF-8).
class EngineFailure : public std::runtime_error
{
public:
    explicit EngineFailure(const QString& message) : std::runtime_error(message.toStdString()) {}
};

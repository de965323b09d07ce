#include "ui/FolderQuestion.h"

using namespace Qt::StringLiterals;

QString FolderQuestion(const QString& current, const QString& question)
{
    constexpr int shortPath = 30, longerPath = 40, longestPath = 49; // characters
    if (current.size() > longestPath)
        return question;
    const QString prefix = current.size() <= shortPath    ? u"Current Location: "_s
                           : current.size() <= longerPath ? u"Location: "_s
                                                          : QString();
    return prefix + current + u"\r\n"_s + question;
}

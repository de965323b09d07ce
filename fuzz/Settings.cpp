#include "app/SettingsFile.h"
#include "app/SettingsLoad.h"
#include "fuzz/Fuzz.h"
#include "platform/Text.h"
#include "state/OptionTable.h"

// Whatever config.vyk held: what the launcher goes on with can be written, and is read as it was.
void Try(const QByteArray& bytes)
{
    Settings settings = DefaultSettings();
    ReadSettings(settings, LinesOf(FromAnsi(bytes)), true);
    CorrectSettings(settings);
    const QStringList lines = SettingsLines(settings, true);
    Settings again = DefaultSettings();
    Require(ReadSettings(again, lines, true) == ReadResult::Complete);
    Require(SettingsLines(again, true) == lines);
}

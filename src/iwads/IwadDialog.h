#pragma once

#include "state/Launcher.h"

// What the IWAD locations dialog does; IwadForm shows it. The boxes are IwadPaths::ShowIwads.
class IwadDialog
{
public:
    explicit IwadDialog(Launcher& launcher) : m_launcher(launcher) {}

    bool warningShown() const { return m_warningShown; } // in place of the boxes
    bool canSearch() const { return m_canSearch; }
    bool canAdd() const { return m_canAdd; }

    void activate(); // the dialog is about to be shown
    void search();   // butSearchIwad
    void reset();    // butReset
    void addIwad();  // butAddIwad
    bool accept();   // butOK: true when the dialog closes
    void openHelp(); // a click on the warning

private:
    bool checkIwad(const QString& path); // CheckIwad: records the path for its family
    void forgetIwads();
    void readAgain(); // what the IWADs are for the rest of the launcher

    Launcher& m_launcher;
    bool m_warningShown = false;
    bool m_canSearch = true;
    bool m_canAdd = true;
    QString m_lastFolder; // of the file added last
};

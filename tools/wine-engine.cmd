@echo off
rem Starts the Doom engine of the system that Wine runs on, with the help of the script beside this file, and
rem ends when it does: the script deletes the file "running". Wine's own "start" does not wait for such programs.
set running=%TEMP%\engine-%RANDOM%
echo . >"%running%"
start "" /unix "%VYK_WINE_ENGINE%" "%running%" %*
:wait
ping -n 2 127.0.0.1 >nul
if exist "%running%" goto wait

#pragma once

#include "state/Launcher.h"

// The commands that turn the selected installed game into one of the other kind. Its files are moved, each
// in one step, so that a failure leaves every file whole in its old or its new place.
void ConnectConversion(Launcher& launcher);

void ConvertToGwad(Launcher& launcher); // mcGwadConvert
void ConvertToPwad(Launcher& launcher); // mcUdirConvert

#pragma once

// Whether the system keeps what is deleted for this user, by the FreeDesktop.org Trash specification or in
// Windows' Recycle Bin; makes its folder where it is missing.
bool HasTrash();

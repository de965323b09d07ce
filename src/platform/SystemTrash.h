#pragma once

// Whether the system keeps what is deleted for this user, by the FreeDesktop.org Trash specification or in
// Windows' Recycle Bin.
bool HasTrash();

#pragma once

// Has the program's heap give back what it no longer uses, and threads share it: a window that is idle most
// of the time then keeps little. To be called before any thread is started.
void KeepHeapSmall();

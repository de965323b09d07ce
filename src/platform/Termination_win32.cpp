#include "platform/Termination.h"

void OnTermination(const std::function<void()>&) {}

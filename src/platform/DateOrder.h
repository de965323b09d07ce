#pragma once

// Whether a date that is written in numbers names the day before the month, as the user has it.
bool IsDayBeforeMonth();

#pragma once
// Another copy of the program at work on the same store while the copy under test holds its
// records: the work runs on a thread of its own, hence on connections of its own (the stores
// keep one per file and thread), which are dropped when it ends. The test waits for it.
#include <functional>

// Runs `obra` on another connection to the stores and waits for it; false when it failed (a
// cFallo or any other exception; the reason goes to the test's log).
bool EnOtraConexion(const std::function<void()>& obra);

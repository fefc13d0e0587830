// Notes the stack of every exception thrown in the process, so that the
// error report can say where an error began and not only where it was
// caught. The program defines __cxa_throw itself: the dynamic linker then
// sends every throw here, also those inside the C++ library (vector::at,
// stoi, bad_alloc) and Qt, which a link-time wrap would miss. The library's
// own __cxa_throw does the throwing.

#include "support/StackCleaner.h"

#include <dlfcn.h>

#include <cstdlib>

namespace {

// The type is passed on untouched, so it is declared as the compiler itself
// declares this function: with a plain pointer.
using ThrowFunction = void (*)(void *, void *, void (*)(void *));

ThrowFunction libraryThrow()
{
    static const auto next = reinterpret_cast<ThrowFunction>(dlsym(RTLD_NEXT, "__cxa_throw"));
    return next;
}

} // namespace

extern "C" {

// NOLINTNEXTLINE(bugprone-reserved-identifier): the C++ runtime's own entry, defined here on purpose
[[noreturn]] void __cxa_throw(void *exception, void *type, void (*destroy)(void *))
{
    StackCleaner::recordThrow(exception);
    if (ThrowFunction next = libraryThrow())
        next(exception, type, destroy);
    std::abort(); // no C++ runtime to throw with: nothing sensible remains
}

} // extern "C"

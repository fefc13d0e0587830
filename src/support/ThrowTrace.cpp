// Notes the stack of every exception that this program throws, so that the
// error report can say where an error began and not only where it was
// caught. The linker sends every throw here first (--wrap=__cxa_throw).

#include "support/StackCleaner.h"

#include <typeinfo>

extern "C" {

[[noreturn]] void __real___cxa_throw(void *exception, std::type_info *type, void (*destroy)(void *));

[[noreturn]] void __wrap___cxa_throw(void *exception, std::type_info *type, void (*destroy)(void *))
{
    StackCleaner::recordThrow();
    __real___cxa_throw(exception, type, destroy);
}

} // extern "C"

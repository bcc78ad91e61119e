// How the user measures.
#include "Locale.h"

namespace foundation {

Locale &Locale::current()
{
    static Locale locale;
    return locale;
}

} // namespace foundation

// Work that the window does not wait for.
#include "Background.h"

namespace host {

QObject &backgroundAnswers()
{
    static auto *const answers = new QObject;
    return *answers;
}

} // namespace host

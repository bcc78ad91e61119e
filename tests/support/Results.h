// Values that a test takes for granted.
#pragma once

#include "Foundation/Or.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace support {

/// The value, or the end of the test with the problem's sentence.
template <class T>
T value(foundation::Or<T> result)
{
    if (!result)
        throw std::runtime_error(result.problem().sentence.toStdString());
    return *std::move(result);
}

/// The sentence of a problem; "(none)" where all went well.
template <class T>
QString sentence(const foundation::Or<T> &result)
{
    return result ? QString("(none)") : result.problem().sentence;
}

} // namespace support

// The two units of the paper feed amount; no widgets here, not even Qt.
#pragma once

namespace paper {

struct FeedUnit
{
    const char *label; // beside the entry; the panel reads the unit back from there
    double initial;
    double smallest;
    double largest;
    double increment;
    int decimals;
    const char *refusedStart;  // an amount that starts so is not printed
    const char *outOfRangeKey; // text of the alert
};

inline constexpr FeedUnit kMillimetres{.label = "mm",
                                       .initial = 26,
                                       .smallest = 1,
                                       .largest = 51,
                                       .increment = 1,
                                       .decimals = 0,
                                       .refusedStart = "0",
                                       .outOfRangeKey = "Unsupported Size MSG1"};
inline constexpr FeedUnit kInches{.label = "inch",
                                  .initial = 1,
                                  .smallest = 0.1,
                                  .largest = 2,
                                  .increment = 0.1,
                                  .decimals = 1,
                                  .refusedStart = ".",
                                  .outOfRangeKey = "Unsupported Size MSG2"};

constexpr const FeedUnit &feedUnit(bool metric) { return metric ? kMillimetres : kInches; }

} // namespace paper

// What `qnprint-arrange` is told, and what it answers: its status when it ends.
#pragma once

namespace host {

inline constexpr auto kArrangeProgram = "qnprint-arrange";

/// The words of its command line, in order. Lengths are in points, the printable area is one of `Sheet`.
enum ArrangeWord {
    kSheetWidth = 1,
    kSheetHeight,
    kPrintableLeft,
    kPrintableTop,
    kPrintableWidth,
    kPrintableHeight,
    kTurnsLeft, // 1 for a sheet that does
    kScalingName,
    kPageRanges, // as `readPageRanges` gives them
    kArrangeWords,
};

enum ArrangeStatus {
    kArranged = 0,
    kUnreadable = 1, // the document, or it has no such pages
    kUnwritable = 2, // what has been made of it
    kOverstrained = 3,
};

} // namespace host

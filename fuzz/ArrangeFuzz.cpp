// Any bytes as a document that is put on sheets: what comes out can be read again and has sheets only, or it says that
// the document can't be read.
#include "ArrangedBytes.h"
#include "Fuzzing.h"

#include <exception>

namespace {

constexpr const char *kScalings[] = {"auto", "auto-fit", "fit", "fill", "none"};

fuzzing::Arrangement arrangementOf(std::uint8_t choice)
{
    return {226.77, choice & 0x80 ? 100.0 : 425.2, (choice & 0x40) != 0, kScalings[choice % 5], (choice & 0x20) != 0};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 1)
        return 0;
    const auto how = arrangementOf(data[size - 1]); // the last byte, which a PDF does not need
    std::string sheets;
    try {
        sheets = fuzzing::arranged({reinterpret_cast<const char *>(data), size}, how);
    } catch (const std::exception &) {
        return 0;
    }
    if (!sheets.empty())
        fuzzing::promise(fuzzing::countOfSheets(sheets, how) > 0);
    return 0;
}

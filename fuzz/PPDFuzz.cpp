// Any bytes as a PPD: what it says can be asked for and marked, or one sentence says why not.
#include "Fuzzing.h"

#include "PPD/PPDMarks.h"

namespace {

constexpr int kMostChoices = 20; // of an option: marking takes its time

void markEverything(const host::PPDDocument &ppd, host::PPDMarks &marks)
{
    for (const ppd_option_t *option : ppd.options()) {
        const QString keyword = QString::fromUtf8(option->keyword);
        ppd.optionText(keyword);
        for (int i = 0; i < qMin(option->num_choices, kMostChoices); ++i) {
            const QString choice = QString::fromUtf8(option->choices[i].choice);
            ppd.choiceText(keyword, choice, "de");
            marks.mark(keyword, choice);
        }
        marks.mark(keyword, "1.5");
    }
    if (ppd.accepts(host::kPageSize, "Custom.200x300"))
        marks.markCustomPageSize({200, 300});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = fuzzing::pathOf("any.ppd");
    fuzzing::write(path, fuzzing::bytesOf(data, size));
    const auto ppd = host::PPDDocument::open(path);
    if (!ppd) {
        const QString sentence = ppd.problem().sentence;
        fuzzing::promise(sentence.startsWith(path) && !sentence.contains('\n'));
        return 0;
    }
    for (const host::PaperEntry &paper : (*ppd)->papers("de_DE"))
        fuzzing::promise((*ppd)->pageSize(paper.name).has_value());
    host::PPDMarks marks(**ppd);
    markEverything(**ppd, marks);
    const host::OptionValues forJob = marks.forJob();
    for (const auto &[keyword, choice] : forJob.asKeyValueRange())
        (*ppd)->accepts(keyword, choice);
    marks.adoptDefaults(forJob);
    marks.restore(forJob);
    return 0;
}

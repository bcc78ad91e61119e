// A driver that prints nothing and writes down what it was told: arguments, environment, the choices marked in its PPD,
// and the document.
// Runs under the test's own CUPS server, as any filter does.
#include "Printing/ppd_api.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

namespace {

/// Empty for what takes none.
std::string markedText(ppd_file_t &ppd, const ppd_option_t &option)
{
    ppd_coption_t *const custom = ppdFindCustomOption(&ppd, option.keyword);
    const ppd_cparam_t *const parameter = custom ? ppdFirstCustomParam(custom) : nullptr;
    const bool isText = parameter && (parameter->type == PPD_CUSTOM_STRING || parameter->type == PPD_CUSTOM_PASSCODE ||
                                      parameter->type == PPD_CUSTOM_PASSWORD);
    return isText && parameter->current.custom_string ? parameter->current.custom_string : "";
}

void recordMarks(std::ostream &out, const char *arguments)
{
    const printing::PPDFile ppd(ppdOpenFile(std::getenv("PPD")));
    if (!ppd)
        return;
    ppdMarkDefaults(ppd.get());
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(arguments, 0, &options);
    cupsMarkOptions(ppd.get(), count, options);
    for (auto *option = ppdFirstOption(ppd.get()); option; option = ppdNextOption(ppd.get())) {
        if (const ppd_choice_t *choice = ppdFindMarkedChoice(ppd.get(), option->keyword))
            out << "mark " << option->keyword << '=' << choice->choice << '\n';
        out << "text-" << option->keyword << ' ' << markedText(*ppd, *option) << '\n';
    }
    if (ppd_coption_t *custom = ppdFindCustomOption(ppd.get(), "QnPaperFeed"))
        for (auto *parameter = ppdFirstCustomParam(custom); parameter; parameter = ppdNextCustomParam(custom))
            out << "parameter " << parameter->name << '=' << parameter->current.custom_real << '\n';
    cupsFreeOptions(count, options);
}

} // namespace

int main(int argc, char *argv[])
{
    const char *const folder = std::getenv("QN_RECORD_DIR");
    if (argc < 6 || !folder)
        return 1;
    const std::string path = std::string(folder) + "/job-" + argv[1];
    {
        std::ofstream out(path + ".part");
        out << "user " << argv[2] << "\ntitle " << argv[3] << "\ncopies " << argv[4] << "\noptions " << argv[5] << '\n';
        for (const char *name : {"PRINTER", "DEVICE_URI", "CONTENT_TYPE", "FINAL_CONTENT_TYPE"})
            if (const char *value = std::getenv(name))
                out << name << ' ' << value << '\n';
        recordMarks(out, argv[5]);
        std::ifstream file;
        if (argc > 6)
            file.open(argv[6], std::ios::binary);
        std::istream &document = argc > 6 ? file : std::cin;
        std::ofstream copy(path + ".document", std::ios::binary);
        std::size_t size = 0;
        char part[4096];
        while (document.read(part, sizeof(part)) || document.gcount() > 0) {
            size += static_cast<std::size_t>(document.gcount());
            std::cout.write(part, document.gcount());
            copy.write(part, document.gcount());
        }
        out << "size " << size << '\n';
    }
    return std::rename((path + ".part").c_str(), (path + ".txt").c_str());
}

// What one call of korvane-picture is asked to do.
#include "Picture/Options.h"

#include <getopt.h>

#include <charconv>

namespace korvane {
namespace {

constexpr int largestEdge = 1'000'000;

enum OptionCode { ToOption = 1, QualityOption, MaxPixelsOption, SizeOption, HelpOption };

bool readNumber(const std::string &text, int lowest, int highest, int &number) {
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end && number >= lowest && number <= highest;
}

bool readCommand(const std::string &word, Options &options) {
    if (word == "convert")
        options.command = Command::Convert;
    else if (word == "check")
        options.command = Command::Check;
    else if (word == "thumbnail")
        options.command = Command::Thumbnail;
    else
        return false;
    return true;
}

bool readFormat(const std::string &word, OutputFormat &format) {
    if (word != "jpeg" && word != "png") return false;
    format = word == "png" ? OutputFormat::PNG : OutputFormat::JPEG;
    return true;
}

} // namespace

std::optional<Options> Options::parse(int count, char **arguments, std::string &problem) {
    static const option known[] = {{"to", required_argument, nullptr, ToOption},
                                   {"quality", required_argument, nullptr, QualityOption},
                                   {"max-pixels", required_argument, nullptr, MaxPixelsOption},
                                   {"size", required_argument, nullptr, SizeOption},
                                   {"help", no_argument, nullptr, HelpOption},
                                   {nullptr, 0, nullptr, 0}};
    const auto fail = [&](const std::string &text) {
        problem = text;
        return std::nullopt;
    };
    Options options;
    bool formatGiven = false;
    bool sizeGiven = false;
    bool convertOnly = false;
    opterr = 0;
    for (int code; (code = getopt_long(count, arguments, "", known, nullptr)) != -1;) {
        const std::string value = optarg ? optarg : "";
        if (code == HelpOption) return Options{};
        if (code == '?') return fail(std::string("cannot understand \"") + arguments[optind - 1] + "\"");
        if (code == ToOption && !readFormat(value, options.format))
            return fail("--to takes jpeg or png, not \"" + value + "\"");
        if (code == QualityOption && !readNumber(value, 1, 100, options.quality))
            return fail("--quality takes a number from 1 to 100, not \"" + value + "\"");
        if ((code == MaxPixelsOption || code == SizeOption) && !readNumber(value, 1, largestEdge, options.maxPixels))
            return fail("the size takes a number of pixels from 1 to 1000000, not \"" + value + "\"");
        formatGiven |= code == ToOption;
        sizeGiven |= code == SizeOption;
        convertOnly |= code == MaxPixelsOption || code == QualityOption;
    }
    if (optind != count - 1) return fail("give one of the commands convert, check and thumbnail");
    if (!readCommand(arguments[optind], options))
        return fail(std::string("no such command: \"") + arguments[optind] + "\"");
    if (options.command != Command::Check && !formatGiven) return fail("--to jpeg or --to png is missing");
    if (options.command == Command::Thumbnail && !sizeGiven) return fail("--size is missing");
    if (options.command != Command::Thumbnail && sizeGiven) return fail("--size belongs to thumbnail");
    if (options.command != Command::Convert && convertOnly) return fail("--quality and --max-pixels belong to convert");
    return options;
}

const char *Options::helpText() {
    return "Usage: korvane-picture convert --to jpeg|png [--quality 1-100] [--max-pixels N] < PICTURE > OUTPUT\n"
           "       korvane-picture thumbnail --size N --to jpeg|png < PICTURE > OUTPUT\n"
           "       korvane-picture check < PICTURE\n"
           "\n"
           "Reads a JPEG, PNG, GIF, WebP, TIFF, HEIC, AVIF or JPEG XL file from standard input, which must be a file\n"
           "and not a pipe. Of several pictures in one file the first is taken.\n"
           "\n"
           "  convert      writes the picture upright, in sRGB, with 8 bits a channel and without any metadata.\n"
           "               Transparent places become white in a JPEG. --quality (JPEG only) is 90 unless given;\n"
           "               --max-pixels limits the longer edge. A JPEG's edges have at most 65500 pixels.\n"
           "  thumbnail    the same, quickly and small: it fits into a square of N pixels. It may show what there is "
           "of\n"
           "               a file that is cut short.\n"
           "  check        decodes the whole picture and writes nothing.\n"
           "\n"
           "Exit status: 0 all well; 1 the picture cannot be used; 2 bad usage; 3 the output could not be written.\n"
           "What is wrong is said in one line on standard error. Output is complete only with status 0.\n";
}

} // namespace korvane

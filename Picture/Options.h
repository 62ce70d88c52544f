// What one call of korvane-picture is asked to do.
#pragma once

#include <optional>
#include <string>

namespace korvane {

enum class Command { Convert, Check, Thumbnail, Help };
enum class OutputFormat { JPEG, PNG };

// The exit statuses, which callers rely on.
enum ExitStatus { ExitOK = 0, ExitPictureUnusable = 1, ExitBadUsage = 2, ExitOutputFailed = 3 };

struct Options {
    Command command = Command::Help;
    OutputFormat format = OutputFormat::JPEG;
    int quality = 90;
    int maxPixels = 0; // limit of the longer edge; 0 for none

    // Null, with one line that says what is wrong, if the arguments cannot be understood.
    static std::optional<Options> parse(int count, char **arguments, std::string &problem);
    static const char *helpText();
};

} // namespace korvane

// korvane-picture: makes upright sRGB pictures of picture files, in a process of its own.
#include "Picture/Options.h"
#include "Picture/OutputFile.h"
#include "Picture/Picture.h"
#include "Picture/ResourceLimits.h"

#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

using namespace korvane;

namespace {

int complain(ExitStatus status, const std::string &text) {
    std::fprintf(stderr, "korvane-picture: %s\n", text.c_str());
    return status;
}

// The first line of what libvips has gathered.
std::string damage(const std::string &text) {
    const std::string line = text.substr(0, text.find('\n'));
    if (line.find("operation is blocked") != std::string::npos) return unreadableFormat;
    return line.empty() ? "the picture is damaged" : "the picture is damaged (" + line + ")";
}

int run(const Options &options) {
    struct stat input;
    if (::fstat(STDIN_FILENO, &input) != 0 || !S_ISREG(input.st_mode))
        return complain(ExitBadUsage, "standard input must be a picture file");
    if (input.st_size == 0) return complain(ExitPictureUnusable, "the file is empty");
    OutputFile output(STDOUT_FILENO);
    try {
        const Picture picture(STDIN_FILENO);
        if (options.command == Command::Check)
            picture.check();
        else
            picture.convert(options, output);
    } catch (const PictureError &error) {
        return complain(ExitPictureUnusable, error.what());
    } catch (const vips::VError &error) {
        if (output.error() != 0)
            return complain(ExitOutputFailed, std::string("cannot write the output: ") + std::strerror(output.error()));
        return complain(ExitPictureUnusable, damage(error.what()));
    } catch (const std::bad_alloc &) {
        return complain(ExitPictureUnusable, "the picture needs too much memory");
    }
    return ExitOK;
}

// One thread and no operation cache, and none of the loaders that are not made for hostile files.
bool startVips(const char *program) {
    ::setenv("VIPS_DISC_THRESHOLD", "256m", 0); // decoded pictures above it go to a file in $TMPDIR
    g_log_set_default_handler([](const gchar *, GLogLevelFlags, const gchar *, gpointer) {}, nullptr);
    if (VIPS_INIT(program) != 0) return false;
    vips_block_untrusted_set(TRUE);
    vips_operation_block_set("VipsForeignLoadJxl", FALSE); // counted among the untrusted, but phones make such photos
    vips_concurrency_set(1);
    vips_cache_set_max(0);
    return true;
}

} // namespace

int main(int count, char **arguments) {
    std::string problem;
    const auto options = Options::parse(count, arguments, problem);
    if (!options) return complain(ExitBadUsage, problem + " (see korvane-picture --help)");
    if (options->command == Command::Help)
        return std::fputs(Options::helpText(), stdout) < 0 ? ExitOutputFailed : ExitOK;
    std::signal(SIGPIPE, SIG_IGN);
    limitResources();
    if (!startVips(arguments[0])) return complain(ExitPictureUnusable, "libvips does not start");
    const int status = run(*options);
    vips_shutdown();
    return status;
}

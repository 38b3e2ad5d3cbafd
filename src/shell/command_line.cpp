#include "shell/command_line.h"

#include <QFile>

#include <cstdio>
#include <cstring>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

constexpr int Failed = 1;
constexpr int Misused = 2;

constexpr char Help[] = "Usage: tavenor3 [FOLDER]\n"
                        "       tavenor3 --help | --version\n"
                        "\n"
                        "Keeps lottery draw results, and checks, studies and builds lines.\n"
                        "\n"
                        "  FOLDER     work with drawdata.tv3 and userdata.tv3 in that folder,\n"
                        "             instead of those in your own\n"
                        "  --help     say this and end\n"
                        "  --version  tell the version and end\n"
                        "\n"
                        "The options of the Qt toolkit, such as -platform, are taken too.\n";

} // namespace

std::optional<int> AnswerQuestion(int count, char** arguments)
{
    for (int word = 1; word < count; ++word) {
        const bool help = std::strcmp(arguments[word], "--help") == 0;
        if (!help && std::strcmp(arguments[word], "--version") != 0)
            continue;
        std::fputs(help ? Help : "Tavenor " TAVENOR_VERSION "\n", stdout);
        return 0;
    }
    return {};
}

std::optional<int> EnterFolder(const QStringList& words)
{
    if (words.size() < 2)
        return {};
    if (words.size() > 2 || words[1].startsWith(u'-')) {
        std::fprintf(stderr, "tavenor3: %s is not understood. Try tavenor3 --help\n", qPrintable(words.last()));
        return Misused;
    }
    std::error_code failure;
    std::filesystem::current_path(QFile::encodeName(words[1]).toStdString(), failure);
    if (!failure)
        return {};
    std::fprintf(stderr, "tavenor3: The folder %s could not be opened. %s\n", qPrintable(words[1]),
                 failure.message().c_str());
    return Failed;
}

#include "platform/base/SystemFolder.h"

#include "platform/base/CodePage.h"
#include "platform/base/Environment.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>
#include <system_error>

namespace
{

/// The value of a variable that names a folder. Relative ones are invalid and don't count.
std::optional<std::string> FolderVariable(std::string_view sName)
{
    auto value = gGetEnvironment(sName);
    return value && value->starts_with('/') ? value : std::nullopt;
}

std::string ConfigFolder(const std::string& rsHome)
{
    return FolderVariable("XDG_CONFIG_HOME").value_or(rsHome + "/.config");
}

/// The folder that the user gave for documents. Its line reads
/// XDG_DOCUMENTS_DIR="$HOME/Papers" or XDG_DOCUMENTS_DIR="/srv/papers".
std::optional<std::string> ChosenDocuments(const std::string& rsHome)
{
    constexpr std::string_view begin = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view home = "$HOME/";
    std::optional<std::string> folder;
    std::ifstream file(ConfigFolder(rsHome) + "/user-dirs.dirs");
    for (std::string sLine; std::getline(file, sLine);) {
        std::string_view sRest = sLine;
        if (!sRest.starts_with(begin)) {
            continue;
        }
        sRest.remove_prefix(begin.size());
        sRest = sRest.substr(0, sRest.find('"'));
        if (sRest.starts_with(home)) {
            folder = rsHome + '/' + std::string(sRest.substr(home.size()));
        } else if (sRest.starts_with('/')) {
            folder = sRest;
        }
    }
    return folder;
}

std::string PlaceOf(ESystemFolder eFolder, const std::string& rsHome)
{
    switch (eFolder) {
    case ESystemFolder::Documents:
        return ChosenDocuments(rsHome).value_or(rsHome + "/Documents");
    case ESystemFolder::ApplicationData:
        break;
    }
    return ConfigFolder(rsHome);
}

} // namespace

std::u16string gGetSystemFolder(ESystemFolder eFolder, bool bCreate)
{
    const auto home = FolderVariable("HOME");
    if (!home) {
        return {};
    }
    std::string sFolder = PlaceOf(eFolder, *home);
    while (sFolder.size() > 1 && sFolder.ends_with('/')) {
        sFolder.pop_back();
    }
    if (bCreate) {
        std::error_code error;
        std::filesystem::create_directories(sFolder, error);
        if (!std::filesystem::is_directory(sFolder, error)) {
            return {};
        }
    }
    return gMultiByteToWide(sFolder, kCodePageUtf8);
}

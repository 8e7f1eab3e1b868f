#pragma once

#include <filesystem>
#include <string>

namespace quittika::test {

/// A picture that ships with the program, found from the folder of the build.
inline std::string shipped(const std::string& name) {
    for (auto folder = std::filesystem::current_path(); folder != folder.root_path();
         folder = folder.parent_path()) {
        if (std::filesystem::exists(folder / "bilder" / name)) {
            return (folder / "bilder" / name).string();
        }
    }
    return {};
}

} // namespace quittika::test

#include "platform/avi/FileSearch.h"

#include "platform/avi/KernelObject_p.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fnmatch.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace seisplot {
namespace {

namespace fs = std::filesystem;

class FileSearch final : public KernelObject {
public:
    std::vector<WIN32_FIND_DATAA> matches;
    std::size_t next = 0;
};

WIN32_FIND_DATAA Entry(const std::string& name, const fs::path& path) {
    WIN32_FIND_DATAA data;
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status)) {
        data.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY;
    } else {
        data.dwFileAttributes = FILE_ATTRIBUTE_NORMAL;
        const std::uintmax_t size = fs::file_size(path, error);
        data.nFileSize = error ? 0 : size;
    }
    std::strncpy(data.cFileName, name.c_str(), MAX_PATH - 1);
    return data;
}

bool Matches(const std::string& pattern, const std::string& name) {
    return ::fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD) == 0;
}

} // namespace
} // namespace seisplot

HANDLE FindFirstFile(LPCSTR pattern, WIN32_FIND_DATAA* data) {
    namespace fs = std::filesystem;
    if (pattern == nullptr || data == nullptr) {
        return INVALID_HANDLE_VALUE;
    }
    const fs::path full(pattern);
    const std::string wanted = full.filename().string();
    const fs::path folder = full.has_parent_path() ? full.parent_path() : fs::path(".");
    auto search = std::make_unique<seisplot::FileSearch>();
    std::error_code error;
    fs::directory_iterator it(folder, error);
    if (error) {
        return INVALID_HANDLE_VALUE;
    }
    for (const char* dots : {".", ".."}) {
        if (seisplot::Matches(wanted, dots)) {
            search->matches.push_back(seisplot::Entry(dots, folder / dots));
        }
    }
    for (; it != fs::directory_iterator(); it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (name.size() < MAX_PATH && seisplot::Matches(wanted, name)) {
            search->matches.push_back(seisplot::Entry(name, it->path()));
        }
    }
    if (search->matches.empty()) {
        return INVALID_HANDLE_VALUE;
    }
    *data = search->matches[search->next++];
    return seisplot::ToHandle(search.release());
}

BOOL FindNextFile(HANDLE search, WIN32_FIND_DATAA* data) {
    auto* s = seisplot::FromHandle<seisplot::FileSearch>(search);
    if (s == nullptr || data == nullptr || s->next >= s->matches.size()) {
        return FALSE;
    }
    *data = s->matches[s->next++];
    return TRUE;
}

BOOL FindClose(HANDLE search) {
    auto* s = seisplot::FromHandle<seisplot::FileSearch>(search);
    delete s;
    return s != nullptr;
}

BOOL DeleteFile(LPCSTR path) {
    std::error_code error;
    return path != nullptr && !std::filesystem::is_directory(path, error) && ::unlink(path) == 0;
}

BOOL RemoveDirectory(LPCSTR path) {
    return path != nullptr && ::rmdir(path) == 0;
}

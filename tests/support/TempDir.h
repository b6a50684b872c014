#pragma once
// A scratch folder for one test, removed with everything in it afterwards.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace seisplot::test {

class TempDir {
public:
    TempDir() {
        static int counter = 0;
        m_path = std::filesystem::temp_directory_path() /
                 ("seisplot-test-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
        std::filesystem::create_directories(m_path);
    }
    ~TempDir() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    // Writes `content` (bytes as given) to `name` inside the folder and returns its path.
    std::string Write(const std::string& name, const std::string& content) const {
        const std::filesystem::path file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
        return file.string();
    }
    std::string Path(const std::string& name) const { return (m_path / name).string(); }
    // The bytes of `name` inside the folder; empty when it cannot be read.
    std::string Read(const std::string& name) const {
        std::ifstream in(m_path / name, std::ios::binary);
        std::ostringstream bytes;
        bytes << in.rdbuf();
        return bytes.str();
    }

private:
    std::filesystem::path m_path;
};

} // namespace seisplot::test

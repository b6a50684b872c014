#include "PictureFolder.h"

#include <algorithm>
#include <cctype>

namespace framestitch {
namespace {

bool IsDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

} // namespace

bool NameBefore(const std::string& a, const std::string& b) {
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (IsDigit(a[i]) && IsDigit(b[j])) {
            std::size_t ie = i, je = j;
            while (ie < a.size() && IsDigit(a[ie])) {
                ++ie;
            }
            while (je < b.size() && IsDigit(b[je])) {
                ++je;
            }
            // Compare the values: without leading zeros, the longer run is the larger number.
            std::size_t ia = i, jb = j;
            while (ia + 1 < ie && a[ia] == '0') {
                ++ia;
            }
            while (jb + 1 < je && b[jb] == '0') {
                ++jb;
            }
            const std::string_view va(a.data() + ia, ie - ia), vb(b.data() + jb, je - jb);
            if (va.size() != vb.size()) {
                return va.size() < vb.size();
            }
            if (va != vb) {
                return va < vb;
            }
            if (ie - i != je - j) {
                return ie - i < je - j;
            }
            i = ie;
            j = je;
        } else {
            if (a[i] != b[j]) {
                return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[j]);
            }
            ++i;
            ++j;
        }
    }
    return a.size() - i < b.size() - j;
}

std::vector<std::filesystem::path> JpegPictures(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> pictures;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string extension = Lower(entry.path().extension().string());
        if ((extension == ".jpg" || extension == ".jpeg") && !entry.is_directory()) {
            pictures.push_back(entry.path());
        }
    }
    std::sort(pictures.begin(), pictures.end(), [](const auto& a, const auto& b) {
        return NameBefore(a.filename().string(), b.filename().string());
    });
    return pictures;
}

} // namespace framestitch

#pragma once
// The JPEG pictures of a folder, in the order of their names with numbers compared by value,
// so that "frame2.jpg" comes before "frame10.jpg" (names numbered with leading zeros keep
// their plain order).

#include <filesystem>
#include <string>
#include <vector>

namespace framestitch {

// Whether `a` comes before `b`: runs of digits by value (a shorter run of leading zeros first
// when equal), everything else byte by byte.
bool NameBefore(const std::string& a, const std::string& b);

// The *.jpg and *.jpeg files (in any case) of `folder`, in name order. Throws
// std::filesystem::filesystem_error when the folder cannot be read.
std::vector<std::filesystem::path> JpegPictures(const std::filesystem::path& folder);

} // namespace framestitch

#pragma once
// Checks on the files a command names, made before any work so that a message names the real
// cause (a missing file, a folder, an unreadable or empty file) and no output replaces an
// input.

#include <string>
#include <vector>

namespace seisplot::cli {

// Why `path` cannot be read as a file: "no such file", "it is a folder", "it is not a regular
// file", "it cannot be read (REASON)" or "it is empty"; an empty text when it can.
std::string InputProblem(const std::string& path);

// Fails (CommandError) with "cannot read WHAT PATH: PROBLEM" when InputProblem finds one.
void CheckInput(const std::string& what, const std::string& path);

// A file that a command reads, and what it is to the user ("the record set").
struct InputFile {
    std::string path;
    std::string what;
};
// Fails (BadUsage) when `output`, given with `option`, is one of `inputs` (the same file, by
// any name or link): writing it would destroy what is being read.
void RefuseOverwritingInput(const std::string& option, const std::string& output,
                            const std::vector<InputFile>& inputs);

} // namespace seisplot::cli

#pragma once
// Files written whole or not at all: the content goes to a temporary file in the target's
// folder, which is then renamed over the target. An interrupted or failed write leaves the
// previous file (or none) in place, never a half-written one.

#include <functional>
#include <string>
#include <string_view>

namespace seisplot::cli {

// Calls `write` with the path of a new, empty temporary file beside `target`, then renames it
// to `target`. A symbolic link is followed: the file it leads to is replaced, and the link
// stays. An existing file keeps its permissions (and owner, where the writer may give it);
// one that is not a regular file, or that is read-only, is refused before anything is written. The
// signals that end a program from the terminal (SIGINT, SIGTERM, SIGHUP, SIGQUIT) are held back
// until the rename is done. When `write` throws, the temporary file is removed and the exception
// goes on. Fails (CommandError) when the temporary file cannot be created or renamed.
void ReplaceFile(const std::string& target,
                 const std::function<void(const std::string& temporary)>& write);

// `text` as the whole content of `target`, by ReplaceFile.
void WriteTextFile(const std::string& target, std::string_view text);

} // namespace seisplot::cli

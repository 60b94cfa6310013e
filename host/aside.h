// Lines for whoever looks afterwards: on the standard error, and in a file where the environment names one.
#pragma once

#include <QByteArray>

#include <optional>

namespace host {

// The variable that names the file, by an absolute path.
inline constexpr char AsideFileVariable[] = "ZEMBRO_LOG";

// The file doesn't grow beyond this many bytes by much: a longer one begins anew.
inline constexpr qint64 MostOfAsideFile = 1 << 20;

// Adds the line, an end behind it. Never waits and never fails: what can't be written is lost. Only a plain
// file of the user's own is written to, made if it isn't there; no link is followed.
void tellAside(const QByteArray &line);

// What stands in the file at that path, the last of it, at most four times MostOfAsideFile. Nothing where
// tellAside would write none of it. Fails with 53 if there is no file.
std::optional<QByteArray> readAside(const QByteArray &path);

} // namespace host

// What tells a file from another one, or from what it was at another time, without reading it.
#pragma once

#include <QHashFunctions>
#include <QString>

#include <optional>

#include <sys/stat.h>

namespace host {

struct FileState {
    dev_t device;
    ino_t file;
    qint64 size; // bytes
    qint64 modified; // nanoseconds
    qint64 changed;

    bool operator==(const FileState &other) const = default;
};

size_t qHash(const FileState &state, size_t seed = 0) noexcept;

// Of a plain file; none where it changed so lately that another change might leave no trace.
std::optional<FileState> stateOf(const struct stat &status);

// The same of what a path leads to; none where that can't be told.
std::optional<FileState> stateOfFile(const QString &path);

// Since the clock's beginning.
qint64 nanoseconds(const timespec &time);

// False while a further change might leave the same time: the file systems' clocks tick coarsely.
bool isSettled(const timespec &changed);

} // namespace host

// The one exception of the program: a failed run-time operation, with its classic number and what it was
// about.
#pragma once

#include <QString>

#include <exception>

namespace host {

// The classic numbers of the operations that can fail.
enum FailureNumber : int {
    InvalidArgument = 5,
    OutOfRange = 9,
    TypeMismatch = 13,
    BadFileNumber = 52,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceError = 57,
    DiskFull = 61,
    PastEndOfFile = 62,
    PermissionDenied = 70,
    PathAccess = 75,
    PathNotFound = 76,
    InvalidProperty = 380,
    PropertyNotSettable = 383,
    InvalidPicture = 481,
};

class Failure : public std::exception {
public:
    // what: the operation in plain words, as in "read a line"; about: the file, control or value it was
    // about.
    Failure(int number, QString what, QString about = {});

    int number() const { return m_number; }
    const QString &operation() const { return m_operation; }
    const QString &about() const { return m_about; }
    const char *what() const noexcept override { return m_text.constData(); }

private:
    int m_number;
    QString m_operation;
    QString m_about;
    QByteArray m_text; // number, operation and subject in one line, for debuggers and test output
};

// Nothing can be written in a file's directory at all: it lies on a CD, or belongs to another user. The file
// stands as it was, and the program may go on.
class ReadOnlyPlace : public Failure {
public:
    using Failure::Failure;
};

// The failure that an errno of the system stands for.
Failure systemFailure(int systemError, QString operation, QString about);

} // namespace host

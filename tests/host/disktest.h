// A fresh directory for each test, and the ways of the tests to put things in it, by exact bytes and without
// the code under test.
#pragma once

#include "host/failure.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <gmock/gmock.h>

#include <functional>
#include <optional>
#include <ostream>

#include <sys/types.h>

// How the test program shows texts.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toPercentEncoding(" \\/.~").toStdString() << '"';
}

class DiskTest : public testing::Test {
protected:
    DiskTest();
    ~DiskTest() override;

    // The absolute path of a name in the directory.
    QByteArray place(const QByteArray &name = {}) const;
    QString path(const QString &name = {}) const;

    void makeFile(const QByteArray &name, const QByteArray &bytes = "x") const;
    void makeDirectory(const QByteArray &name) const;
    void makeLink(const QByteArray &target, const QByteArray &name) const;
    void setMode(const QByteArray &name, mode_t mode) const;

    bool exists(const QByteArray &name) const; // links are not followed
    mode_t mode(const QByteArray &name) const; // the permission bits
    std::optional<QByteArray> bytes(const QByteArray &name) const;
    QList<QByteArray> names() const; // all that lies in the directory, sorted by bytes

private:
    QByteArray m_directory;
    QByteArray m_workingDirectory;
};

// The number of the failure that the operation ends with; 0 if it ends without one.
int failureOf(const std::function<void()> &operation);

// Starts it in a process of its own; endOf waits for that and yields what it returned, or 255 after a
// failure, 254 after a signal.
pid_t startChild(const std::function<int()> &operation);
int endOf(pid_t child);

// Both in one.
int inChild(const std::function<int()> &operation);

// As inChild, as a user whom permissions bind.
int inChildOfOrdinaryUser(const std::function<int()> &operation);

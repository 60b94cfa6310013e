// Whether anybody opens a file, as the system tells it.
#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <sys/inotify.h>
#include <unistd.h>

class OpensOf {
public:
    explicit OpensOf(const QString &file)
        : m_watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(inotify_add_watch(m_watch, file.toUtf8().constData(), IN_OPEN), 0);
    }
    ~OpensOf() { close(m_watch); }
    OpensOf(const OpensOf &) = delete;
    OpensOf &operator=(const OpensOf &) = delete;

    // Since the last call.
    int count() const
    {
        inotify_event event {};
        int result = 0;
        while (read(m_watch, &event, sizeof event) == ssize_t(sizeof event))
            ++result;
        return result;
    }

private:
    int m_watch;
};

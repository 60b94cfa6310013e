// What permissions do to the program, also where the tests run as the administrator, whom they don't bind.
#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

// While it lives, the process is bound by permissions, and a directory has these; the temporary folder that
// it lies in has to let others pass.
class AsOrdinaryUser {
public:
    explicit AsOrdinaryUser(const QString &directory, mode_t permissions = 0555)
        : m_directory(directory.toUtf8())
    {
        constexpr uid_t Nobody = 65534;
        EXPECT_EQ(chmod(m_directory.constData(), permissions), 0);
        if (m_user == 0) {
            EXPECT_EQ(seteuid(Nobody), 0);
        }
    }
    ~AsOrdinaryUser()
    {
        EXPECT_EQ(seteuid(m_user), 0);
        EXPECT_EQ(chmod(m_directory.constData(), 0700), 0);
    }
    AsOrdinaryUser(const AsOrdinaryUser &) = delete;
    AsOrdinaryUser &operator=(const AsOrdinaryUser &) = delete;

private:
    QByteArray m_directory;
    uid_t m_user = geteuid();
};

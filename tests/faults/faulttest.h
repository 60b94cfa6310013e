// A place on the disk on which an operation is tried with a fault at each of its calls to the system.
#pragma once

#include "tests/faults/tracer.h"
#include "tests/host/disktest.h"

#include <string>

namespace faults {

// A file with all that a rewrite has to keep.
struct Likeness {
    std::optional<QByteArray> bytes;
    mode_t mode = 0;
    uid_t owner = 0;
    gid_t group = 0;
    QByteArray accessList;
    QByteArray attribute;

    bool operator==(const Likeness &) const = default;
};

class FaultTest : public DiskTest {
protected:
    void SetUp() override;

    // Puts in place what the operation begins with; what lies there besides stays.
    virtual void prepare() = 0;

    // 0 if it went well, 1 if it failed in its regular way.
    virtual int operate() = 0;

    // After each run with a fault: nothing may be lost, and nothing be in the way of the next run.
    virtual void check(const Fault &fault, const End &end) = 0;

    // Prepares, operates and checks, for every call and every kind of fault; in the quick run for each
    // `stride`th call, from an offset on, where it is killed, interrupted, and fails in one further way.
    void tryAll(int stride, int offset = 0);

    // The extended attribute, the access list, the mode and, for the administrator, the owner of a file that
    // isn't like any other.
    void makeUnusual(const QByteArray &name, mode_t mode) const;
    Likeness likeness(const QByteArray &name) const;

    // True if the whole is asked for, by FAULTS=whole in the environment.
    static bool whole();

private:
    void tryFault(const Fault &fault);
    bool tryCall(int call, bool quick);
    void tryShort();
    void tryNothing();

    bool m_reached = false;
};

} // namespace faults

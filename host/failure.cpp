#include "host/failure.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace host {

Failure::Failure(int number, QString what, QString about)
    : m_number(number)
    , m_operation(std::move(what))
    , m_about(std::move(about))
{
    QString text = u"failure %1: "_s.arg(m_number) + m_operation;
    if (!m_about.isEmpty())
        text += u": "_s + m_about;
    m_text = text.toUtf8();
}

namespace {

int numberOf(int systemError)
{
    switch (systemError) {
    case ENOENT:
        return FileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
        return PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return PermissionDenied;
    case EISDIR:
    case EEXIST:
    case ENOTEMPTY:
    case ELOOP:
    case EBUSY:
    case ETXTBSY:
        return PathAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return DiskFull;
    case ENOEXEC:
    case EINVAL:
    case E2BIG:
        return InvalidArgument;
    default:
        return DeviceError;
    }
}

} // namespace

Failure systemFailure(int systemError, QString operation, QString about)
{
    return Failure(
        numberOf(systemError), operation + u" (%1)"_s.arg(qt_error_string(systemError)), std::move(about));
}

} // namespace host

#include "platform/FileErrors.h"

#include <cerrno>

namespace varnhold {

namespace {

int numberOf(int code, int whenMissing)
{
    switch (code) {
    case ENOENT:
        return whenMissing;
    case ENOTDIR:
        return errors::pathNotFound;
    case EEXIST:
    case ENOTEMPTY:
        return errors::fileExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return errors::diskFull;
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
        return errors::permissionDenied;
    case EBADF:
    case EINVAL:
    case ENAMETOOLONG:
    case EILSEQ:
        return errors::badFileName;
    case ENOMEM:
        return errors::outOfMemory;
    default: // EACCES, EPERM, EROFS, EISDIR, ELOOP, EXDEV, EIO and the rest
        return errors::pathFileAccess;
    }
}

} // namespace

RunTimeError errorFromErrno(int code, int whenMissing)
{
    return RunTimeError(numberOf(code, whenMissing));
}

} // namespace varnhold

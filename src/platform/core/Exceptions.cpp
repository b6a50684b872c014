#include "platform/core/Exceptions.h"

#include "platform/core/StringTable.h"
#include "platform/core/UserInterface.h"

#include <cerrno>
#include <cstring>

BOOL CException::GetErrorMessage(LPTSTR buffer, UINT maxLength, UINT* helpContext) const {
    if (helpContext) {
        *helpContext = 0;
    }
    const CString text = GetMessageText();
    if (buffer && maxLength > 0) {
        std::strncpy(buffer, text.GetString(), maxLength - 1);
        buffer[maxLength - 1] = '\0';
    }
    return text.IsEmpty() ? FALSE : TRUE;
}

int CException::ReportError(UINT type, UINT messageId) const {
    CString text = GetMessageText();
    if (text.IsEmpty()) {
        text = messageId ? seisplot::LoadLibraryString(messageId) : CString();
    }
    if (text.IsEmpty()) {
        text = "An unsupported operation was attempted.";
    }
    return AfxMessageBox(text, type);
}

namespace {

CString Named(const CString& fileName) {
    return fileName.IsEmpty() ? CString("an unnamed file") : fileName;
}

} // namespace

CString CFileException::GetMessageText() const {
    const CString name = Named(m_strFileName);
    CString text;
    switch (m_cause) {
    case fileNotFound:
        text.Format("%s was not found.", name.GetString());
        break;
    case badPath:
        text.Format("%s contains an invalid path.", name.GetString());
        break;
    case tooManyOpenFiles:
        text.Format("%s could not be opened because there are too many open files.",
                    name.GetString());
        break;
    case accessDenied:
        text.Format("Access to %s was denied.", name.GetString());
        break;
    case invalidFile:
        text.Format("An invalid file handle was associated with %s.", name.GetString());
        break;
    case directoryFull:
        text.Format("%s could not be created because the directory is full.", name.GetString());
        break;
    case badSeek:
        text.Format("Seek failed on %s.", name.GetString());
        break;
    case hardIO:
        text.Format("A hardware I/O error was reported while accessing %s.", name.GetString());
        break;
    case sharingViolation:
        text.Format("A sharing violation occurred while accessing %s.", name.GetString());
        break;
    case lockViolation:
        text.Format("A locking violation occurred while accessing %s.", name.GetString());
        break;
    case diskFull:
        text.Format("Disk full while accessing %s.", name.GetString());
        break;
    case endOfFile:
        text.Format("An attempt was made to access %s past its end.", name.GetString());
        break;
    default:
        text.Format("An unexpected error occurred while accessing %s.", name.GetString());
        break;
    }
    if (m_lOsError > 0) {
        text.AppendFormat(" (%s)", std::strerror(m_lOsError));
    }
    return text;
}

int CFileException::OsErrorToException(LONG osError) {
    switch (osError) {
    case 0:
        return none;
    case ENOENT:
        return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return badPath;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case ENOSPC:
    case EDQUOT:
        return diskFull;
    case ESPIPE:
    case EINVAL:
        return badSeek;
    case EIO:
        return hardIO;
    case EBUSY:
    case ETXTBSY:
        return sharingViolation;
    case EDEADLK:
        return lockViolation;
    default:
        return genericException;
    }
}

CString CArchiveException::GetMessageText() const {
    const CString name = Named(m_strFileName);
    CString text;
    switch (m_cause) {
    case readOnly:
        text.Format("Tried to write to the archive %s, which was opened for loading.",
                    name.GetString());
        break;
    case endOfFile:
        text.Format("Unexpected end of file while reading %s.", name.GetString());
        break;
    case writeOnly:
        text.Format("Tried to read from the archive %s, which was opened for storing.",
                    name.GetString());
        break;
    case badIndex:
        text.Format("Invalid file format in %s.", name.GetString());
        break;
    case badClass:
        text.Format("Tried to read an object of an unexpected type from %s.", name.GetString());
        break;
    case badSchema:
        text.Format("Tried to read an object of an incompatible version from %s.",
                    name.GetString());
        break;
    default:
        text.Format("An unexpected error occurred while reading or writing %s.", name.GetString());
        break;
    }
    return text;
}

void AfxThrowMemoryException() {
    throw new CMemoryException;
}
void AfxThrowResourceException() {
    throw new CResourceException;
}

void AfxThrowFileException(int cause, LONG osError, LPCTSTR fileName) {
    throw new CFileException(cause, osError, fileName);
}

void AfxThrowArchiveException(int cause, LPCTSTR fileName) {
    throw new CArchiveException(cause, fileName);
}

#pragma once
// The framework's exceptions. As in host code written for the framework, they are thrown by
// pointer (the AfxThrow... functions) and the catcher releases them with Delete():
//
//     try { ar >> value; } catch (CArchiveException* e) { ...; e->Delete(); }

#include "platform/core/CString.h"

class CException {
public:
    CException() = default;
    CException(const CException&) = delete;
    CException& operator=(const CException&) = delete;
    virtual ~CException() = default;

    // Frees an exception thrown by pointer.
    void Delete() { delete this; }

    // The text the framework shows for this error; FALSE when it has none.
    virtual BOOL GetErrorMessage(LPTSTR buffer, UINT maxLength, UINT* helpContext = nullptr) const;
    // Shows the error text in a message box through the user-interface services.
    virtual int ReportError(UINT type = 0x30 /* MB_ICONEXCLAMATION */, UINT messageId = 0) const;

    // The error text as a string (the same text GetErrorMessage copies).
    virtual CString GetMessageText() const { return CString(); }
};

class CMemoryException : public CException {
public:
    CString GetMessageText() const override { return "Out of memory."; }
};

class CResourceException : public CException {
public:
    CString GetMessageText() const override { return "A required resource was unavailable."; }
};

class CUserException : public CException {};

class CFileException : public CException {
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr)
        : m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {}

    CString GetMessageText() const override;

    // The cause that an errno value stands for.
    static int OsErrorToException(LONG osError);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

class CArchiveException : public CException {
public:
    enum { none, genericException, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    explicit CArchiveException(int cause = none, LPCTSTR fileName = nullptr)
        : m_cause(cause), m_strFileName(fileName) {}

    CString GetMessageText() const override;

    int m_cause;
    CString m_strFileName;
};

[[noreturn]] void AfxThrowMemoryException();
[[noreturn]] void AfxThrowResourceException();
[[noreturn]] void AfxThrowFileException(int cause, LONG osError = -1, LPCTSTR fileName = nullptr);
[[noreturn]] void AfxThrowArchiveException(int cause, LPCTSTR fileName = nullptr);

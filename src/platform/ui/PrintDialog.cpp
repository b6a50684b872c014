#include "platform/ui/PrintDialog.h"

#include "platform/core/UserInterface.h"
#include "platform/gdi/DocumentDC_p.h"
#include "platform/ui/DialogDriver.h"

#include <QPrinter>

CPrintDialog::CPrintDialog(BOOL /*printSetupOnly*/, DWORD flags, CWnd* /*parent*/)
    : m_flags(flags) {}

CPrintDialog::~CPrintDialog() = default;

INT_PTR CPrintDialog::DoModal() {
    seisplot::PrinterChoice choice;
    choice.flags = m_flags;
    m_chosen = seisplot::CurrentUserInterface().ChoosePrinter(choice);
    if (!m_chosen) {
        return IDCANCEL;
    }
    m_printer = choice.printerName;
    m_file = choice.outputFile;
    return IDOK;
}

CDC* CPrintDialog::GetPrinterDC() {
    if (!m_chosen) {
        return nullptr;
    }
    if (!m_dc) {
        seisplot::EnsureWidgetApplication();
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (!m_file.IsEmpty()) {
            printer->setOutputFormat(QPrinter::PdfFormat);
            printer->setOutputFileName(QString::fromLocal8Bit(m_file.GetString()));
        } else if (!m_printer.IsEmpty()) {
            printer->setPrinterName(QString::fromLocal8Bit(m_printer.GetString()));
        }
        printer->setFullPage(true);
        printer->setDocName(QStringLiteral("seisplot"));
        const int dpi = printer->resolution();
        m_dc = seisplot::OpenPagedDevice(std::move(printer), dpi);
    }
    return m_dc.get();
}

CString CPrintDialog::GetDeviceName() const {
    return m_file.IsEmpty() ? m_printer : m_file;
}

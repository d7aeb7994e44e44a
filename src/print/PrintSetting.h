#pragma once

#include "print/ListPrint.h"

#include <QString>
#include <QStringList>

// The print settings of every sheet print (lists, marker views, batch tables): one record of
// the process that the settings dialog edits a copy of and writes back on OK.
struct PrintSetting {
    static constexpr double kTwipsPerMm = 56.7;

    qint16 Orientation = 0; // 0 portrait, 1 landscape
    qint16 Range = 0;       // 0 all, 1 the selected part, 2 pages
    qint16 FromPage = 1, ToPage = 1;
    double MarginTop = 20 * kTwipsPerMm, MarginLeft = 10 * kTwipsPerMm; // twips
    double MarginBottom = 20 * kTwipsPerMm, MarginRight = 20 * kTwipsPerMm;
    QString HeaderText[3]; // left, centre, right
    QString HeaderFontName = QStringLiteral("DejaVu Sans");
    qint16 HeaderFontSize = 10;
    bool HeaderBold = false, HeaderItalic = false;
    QString FooterText[3];
    QString FooterFontName = QStringLiteral("DejaVu Sans");
    qint16 FooterFontSize = 10;
    bool FooterBold = false, FooterItalic = false;
    qint16 Paper = 0;     // index of the paper table
    qint16 Cancelled = 0; // -1 after Cancel, 0 after OK
    QString Printer;      // empty: a PDF file

    static PrintSetting& shared();

    // The header and footer programs: /fn"name"/fz"size", the style codes of the bold and italic
    // flags, then /l left /c centre /r right.
    static QString program(const QString& font, int size, bool bold, bool italic,
                           const QString (&texts)[3]);
    QString headerProgram() const;
    QString footerProgram() const;
    // The settings of a sheet print: paper, orientation, programs and, for range 2, the pages
    // with the smaller first. An empty footer keeps the print's own (page / pages).
    ListPrintSettings sheetSettings() const;
};

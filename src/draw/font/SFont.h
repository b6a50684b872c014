#pragma once
// The serialisable description of a font and its colour: LOGFONTA's fields and a colour.

#include "platform/core/CArchive.h"
#include "platform/core/CObject.h"
#include "platform/gdi/GdiTypes.h"

class CWnd;

class SFont : public CObject {
public:
    SFont();
    SFont(int height, unsigned long colour);
    SFont(const SFont& other);
    SFont operator=(const SFont& other);
    ~SFont() override;

    CRuntimeClass* GetRuntimeClass() const override;
    void Serialize(CArchive& ar) override;

    LOGFONTA GetFont() const;
    // Lets the user choose a font and its colour; 1 when confirmed, 0 (nothing changed) else.
    int Get(CWnd* parent, LOGFONTA initial, unsigned long colour);

    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char lfFaceName[LF_FACESIZE];
    unsigned long Color;

    static CRuntimeClass classSFont;

private:
    // Takes every field of `font`; the colour is not part of it.
    void SetFont(const LOGFONTA& font);
};

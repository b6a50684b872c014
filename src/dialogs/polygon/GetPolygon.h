#pragma once
// GetPolygon: the dialog in which the user enters a closed polygon vertex by vertex — a first
// point, then sides from the last vertex (by dx and dy, by angle and distance, by angle and
// dx, by angle and dy) or circular arcs, preset shapes, and vertices stepped through, moved
// and removed. The preview shows the polygon closed, its last vertex red and the selected one
// green. OK accepts a polygon of three vertices or more whose sides do not cross.
//
// The host constructs it, may preset Poly, runs DoModal and, on IDOK, reads Poly. Vertices
// stay in input order; the last joins the first.

#include "host/RPoly.h"
#include "platform/ui/CDialog.h"
#include "platform/ui/Controls.h"

class GetPolygon : public CDialog {
public:
    explicit GetPolygon(CWnd* parent = nullptr);

    CButton m_preview; // owner-drawn
    // The selected vertex, shown in two read-only fields.
    double X = 0.0;
    double Y = 0.0;
    CBitmapButton m_arc1;
    CBitmapButton m_andy;
    CBitmapButton m_andx;
    CBitmapButton m_andi;
    CBitmapButton m_dxdy;
    RPoly Poly;
    int Selected = 0; // from 1; 0: none

    // Draws the preview: the polygon, then a red disc on its last vertex and a green one on
    // the selected vertex.
    void DrawPolygon();

    void OnXxfirstpoint();
    void OnXxdxdy();
    void OnXxandi();
    void OnXxandx();
    void OnXxandy();
    void OnXxarc1();
    void OnXxprev();
    void OnXxnext();
    void OnXxeditside();
    void OnXxremoveside();
    void OnXxspecialpoly();

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnDrawItem(int id, LPDRAWITEMSTRUCT drawItem) override;

private:
    // A side needs a vertex to start from: false, after telling the user, without one.
    bool HasFirstPoint();
    void AddVertex(const RPoint2D& vertex);
    // After a change of the polygon or of the selection: the fields show the selected vertex
    // and the preview is drawn again.
    void Changed();
};

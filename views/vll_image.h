// CQorVllImage: a ready-made view of a list of vertex arrays, each shown as one
// polyline, with a base point at the origin and one array that can be marked.
#pragma once

#include "views/dplist_image.h"

// The view keeps its own document; array i is the group of path i + 1, the base
// point the group of path 0, so a left click on array i posts i + 1 to the parent
// and one on the base point posts 0. Lines are drawn in the colour that stands out
// from the background (black or white). The object points into itself and must not
// be copied.
class QOR_API CQorVllImage : public CQorDplistImage {
public:
    // Background from the host's drawing area (viewBkColorGet of the application).
    CQorVllImage();
    ~CQorVllImage() override;
    CQorVllImage(const CQorVllImage&) = delete;
    CQorVllImage& operator=(const CQorVllImage&) = delete;

    // Shows the arrays instead of what was shown, fits the view and repaints. No
    // array is marked afterwards, whatever SetCurVl said before. Always true.
    bool setVll(const CQorArrayTempl<CQorVertexArray>& vll);
    // Marks array n (negative: none) in the highlight colour and repaints; returns
    // the index marked before. An index past the end marks nothing but is kept.
    int SetCurVl(int n);
    // Shows or hides the base point (which then no longer counts for the fit), fits
    // and repaints; returns the former state.
    bool setDrawBase(bool draw);
    // Background colour as 0x00BBGGRR; lines turn black on a background of a
    // brightness (red + green + blue) / 3 of 128 or more, white below. No repaint.
    void SetBkColor(unsigned long color);

    void OnLButtonDblClk(unsigned int flags, CPoint point);

protected:
    CQorArrayTempl<CQorVertexArray> vll;
    CQorGDX gdx;
    int pdSize = 0;
    int pdMode = -1;
    int curVl = -1;
    unsigned long bkColor = 0;
    unsigned long contrast = 0;
    int spare = 255; // kept at 255, read by nothing
    bool drawBase = true;

    DECLARE_MESSAGE_MAP()
};

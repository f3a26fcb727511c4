#include "views/bitmap.h"

#include "drawing/picture_loader_p.h"
#include "drawing/win/gdi_handle_p.h"
#include "drawing/win/gdi_surface_p.h"
#include "foundation/application/app_file_name.h"
#include "foundation/application/app_files.h"
#include "foundation/base/qor_map_templ.h"
#include "framework/bitmap.h"
#include "framework/dc.h"

namespace {

constexpr DWORD kRopAnd = 0x8800C6;    // SRCAND
constexpr DWORD kRopXor = 0x660046;    // SRCINVERT
constexpr DWORD kRopInvert = 0x550009; // DSTINVERT
constexpr DWORD kRopCopy = 0xCC0020;   // SRCCOPY

void fillSolid(HDC dc, int w, int h, COLORREF color) {
    const COLORREF old = SetBkColor(dc, color);
    RECT r = {0, 0, w, h};
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &r, nullptr, 0, nullptr);
    SetBkColor(dc, old);
}

// Icon or bitmap of a file: found along the application's paths, judged by the
// ending of what was found, loaded from name as given.
HANDLE loadFromFile(const CQorString& name, int width, int height, bool& isIcon) {
    CQorString found;
    if (!QOR::fileFind(found, name.c_str()) || found.len() <= 4)
        return nullptr;
    found.makeLower();
    const CQorString ending = found.mid(static_cast<unsigned>(found.len() - 4), 4);
    if (ending == L".ico") {
        isIcon = true;
        return LoadImageW(nullptr, name.c_str(), IMAGE_ICON, width, height, LR_LOADFROMFILE);
    }
    if (ending == L".bmp")
        return LoadImageW(nullptr, name.c_str(), IMAGE_BITMAP, width, height, LR_LOADFROMFILE);
    return nullptr;
}

HICON loadByNumber(int number, int width, int height) {
    HICON icon = LoadIconW(nullptr, MAKEINTRESOURCEW(number & 0xFFFF));
    if (icon)
        return icon;
    CQorString self;
    QOR::appFileName(self, L"Qor", L"Mfc", L"Dll");
    HMODULE module = GetModuleHandleW(self.c_str());
    if (!module)
        return nullptr;
    return static_cast<HICON>(
        LoadImageW(module, MAKEINTRESOURCEW(number & 0xFFFF), IMAGE_ICON, width, height, 0));
}

// The icon drawn on bkColor: result = bk AND mask, then XOR the colour image with
// its transparent part blacked out by the inverted mask. The icon is freed.
HBITMAP flattenIcon(QOR::CQorIcon icon, COLORREF bkColor) {
    QOR::CQorDc display(CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr));
    QOR::CQorDc mem(display ? CreateCompatibleDC(display.get()) : nullptr);
    if (!display || !mem)
        return nullptr;
    ICONINFO info = {};
    if (!GetIconInfo(icon.get(), &info))
        return nullptr;
    // GetIconInfo makes both bitmaps for its caller.
    QOR::CQorBitmap color(info.hbmColor);
    QOR::CQorBitmap mask(info.hbmMask);
    int w = 32, h = 32;
    BITMAP bm = {};
    if (color && GetObjectW(color.get(), sizeof(bm), &bm)) {
        w = bm.bmWidth;
        h = bm.bmHeight;
    } else if (mask && GetObjectW(mask.get(), sizeof(bm), &bm)) {
        // Mask and image stacked in one bitmap.
        w = bm.bmWidth;
        h = static_cast<int>(bm.bmHeight * 0.5);
    }
    QOR::CQorBitmap result(CreateCompatibleBitmap(display.get(), w, h));
    {
        QOR::CQorSelection intoResult(mem.get(), result.get());
        fillSolid(mem.get(), w, h, bkColor);
        QOR::CQorDc maskDc(CreateCompatibleDC(display.get()));
        QOR::CQorDc colorDc(CreateCompatibleDC(display.get()));
        QOR::CQorSelection intoMask(maskDc.get(), mask.get());
        QOR::CQorSelection intoColor(colorDc.get(), color.get());
        BitBlt(mem.get(), 0, 0, w, h, maskDc.get(), 0, 0, kRopAnd);
        BitBlt(maskDc.get(), 0, 0, w, h, maskDc.get(), 0, 0, kRopInvert);
        BitBlt(colorDc.get(), 0, 0, w, h, maskDc.get(), 0, 0, kRopAnd);
        BitBlt(mem.get(), 0, 0, w, h, colorDc.get(), 0, 0, kRopXor);
    } // every bitmap is out of its context before it is freed
    return result.release();
}

// The loader of picture items for both painters: the bitmap as pixels.
bool loadPicture(const CQorString& name, int number, int width, int height, bool transparent,
                 unsigned long back, QOR::DeviceBitmap& out) {
    bool t = transparent;
    const QOR::CQorBitmap bitmap(qor_gdx_image_get_bitmap(name, number, width, height, t, back));
    if (!bitmap)
        return false;
    return QOR::deviceBitmapFromHandle(bitmap.get(), out);
}

} // namespace

namespace QOR {

void pictureLoaderInstall() {
    pictureLoaderDefaultSet(loadPicture);
}

} // namespace QOR

HBITMAP qor_gdx_image_get_bitmap(const CQorString& name, int number, int width, int height,
                                 bool& transparent, unsigned long bkColor) {
    HANDLE loaded = nullptr;
    bool isIcon = false;
    if (name.len() > 0) {
        loaded = loadFromFile(name, width, height, isIcon);
    } else {
        loaded = loadByNumber(number, width, height);
        isIcon = true;
    }
    if (!loaded)
        return nullptr;
    if (!isIcon)
        return static_cast<HBITMAP>(loaded);
    transparent = false;
    return flattenIcon(QOR::CQorIcon(static_cast<HICON>(loaded)),
                       static_cast<COLORREF>(bkColor & 0xFFFFFF));
}

unsigned long qor_gdx_picture_bkcolor_get(CDC* dc, BITMAP* bm) {
    if (!dc || !bm)
        return 0;
    return QOR::bitmapBkColorVote(dc->GetSafeHdc(), bm->bmWidth, bm->bmHeight);
}

void qor_gdx_picture_transparent(CDC* dc, int x, int y, int, int, CBitmap* bitmap) {
    if (!dc || !bitmap)
        return;
    QOR::bitmapDrawTransparent(dc->GetSafeHdc(), x, y, static_cast<HBITMAP>(*bitmap));
}

namespace QOR {

unsigned long bitmapBkColorVote(HDC dc, int width, int height) {
    const int w = width, h = height;
    const POINT samples[5] = {{0, 0},
                              {w - 1, 0},
                              {0, h - 1},
                              {static_cast<int>((w - 1) / 2.0), static_cast<int>((h - 1) / 2.0)},
                              {w - 1, h - 1}};
    CQorMapTempl<unsigned long, int> tally;
    for (const POINT& p : samples) {
        const unsigned long c = GetPixel(dc, p.x, p.y);
        int* n = tally.lookup(c);
        if (n)
            ++*n;
        else
            tally.setAt(c, 1);
    }
    unsigned long best = 0;
    int most = 0;
    for (int k = 0; k < tally.len(); ++k) {
        if (tally.valueAt(k) > most) {
            most = tally.valueAt(k);
            best = tally.keyAt(k);
        }
    }
    return best;
}

void bitmapDrawTransparent(HDC dc, int x, int y, HBITMAP bitmap) {
    const COLORREF oldBk = SetBkColor(dc, RGB(255, 255, 255));
    const COLORREF oldText = SetTextColor(dc, RGB(0, 0, 0));
    {
        const QOR::CQorDc image(CreateCompatibleDC(dc));
        const QOR::CQorDc mask(CreateCompatibleDC(dc));
        const QOR::CQorSelection intoImage(image.get(), bitmap);
        BITMAP bm = {};
        GetObjectW(bitmap, sizeof(bm), &bm);
        const int w = bm.bmWidth, h = bm.bmHeight;
        const unsigned long bk = bitmapBkColorVote(image.get(), w, h);
        const QOR::CQorBitmap maskBitmap(CreateBitmap(w, h, 1, 1, nullptr));
        const QOR::CQorSelection intoMask(mask.get(), maskBitmap.get());
        // Copied to one bit per pixel, the pixels of the background colour give 1.
        SetBkColor(image.get(), static_cast<COLORREF>(bk));
        BitBlt(mask.get(), 0, 0, w, h, image.get(), 0, 0, kRopCopy);
        BitBlt(dc, x, y, w, h, image.get(), 0, 0, kRopXor);
        BitBlt(dc, x, y, w, h, mask.get(), 0, 0, kRopAnd);
        BitBlt(dc, x, y, w, h, image.get(), 0, 0, kRopXor);
    } // the selections go first, then the mask bitmap, then the contexts
    SetBkColor(dc, oldBk);
    SetTextColor(dc, oldText);
}

} // namespace QOR

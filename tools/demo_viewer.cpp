#include "tools/demo_viewer.h"

#include "displaylist/gdx.h"
#include "foundation/application/g_outline.h"
#include "foundation/data/config.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_text_format.h"
#include "foundation/records/color_value.h"
#include "slides/win/picture.h"
#include "slides/win/slide_pic.h"
#include "tools/demo_documents.h"
#include "tools/demo_preview.h"
#include "tools/view_pages.h"
#include "tools/view_target.h"
#include "views/dplist_image.h"
#include "views/vll_image.h"

#include <windows.h>

#include <cstdio>
#include <memory>
#include <string>

namespace demo {

namespace {

// Control ids of the two display-list windows; each is also the number of the
// message with which that window tells its parent of a pick.
constexpr UINT kImageId = WM_APP + 1;
constexpr UINT kVllId = WM_APP + 2;
constexpr UINT kSlideId = WM_APP + 3;
constexpr UINT kPictureId = WM_APP + 4;
// How long a screenshot run lets the window settle before it is copied.
constexpr DWORD kSettleMs = 300;

std::wstring widen(const std::string& text) {
    const int n = MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, nullptr, 0);
    if (n <= 1)
        return std::wstring();
    std::wstring out(static_cast<size_t>(n), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, &out[0], n);
    out.resize(static_cast<size_t>(n - 1));
    return out;
}

std::wstring folderOf(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash + 1);
}

std::wstring fileNameOf(const std::wstring& path) {
    return path.substr(folderOf(path).size());
}

// Whether windows are shown to anyone: on Windows always; under Wine not with its
// null driver, nor without an X or Wayland display to show them on.
bool displayPresent() {
    HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    if (!ntdll || !GetProcAddress(ntdll, "wine_get_version"))
        return true;
    wchar_t driver[64] = {};
    DWORD size = sizeof(driver);
    if (RegGetValueW(HKEY_CURRENT_USER, L"Software\\Wine\\Drivers", L"Graphics", RRF_RT_REG_SZ,
                     nullptr, driver, &size) == ERROR_SUCCESS &&
        lstrcmpiW(driver, L"null") == 0)
        return false;
    return GetEnvironmentVariableW(L"DISPLAY", nullptr, 0) > 0 ||
           GetEnvironmentVariableW(L"WAYLAND_DISPLAY", nullptr, 0) > 0;
}

// Ends the process when a screenshot run has not finished in time (a message box
// on an invisible display would wait for ever).
DWORD WINAPI watchdog(LPVOID seconds) {
    Sleep(static_cast<DWORD>(reinterpret_cast<UINT_PTR>(seconds)) * 1000);
    std::fprintf(stderr, "viewer: no screenshot after %u seconds, giving up\n",
                 static_cast<unsigned>(reinterpret_cast<UINT_PTR>(seconds)));
    std::fflush(stderr);
    ExitProcess(4);
}

// A few standard steel sections side by side, for the vertex list view.
CQorArrayTempl<CQorVertexArray> sections() {
    struct Section {
        int code;
        double x, y;
        std::initializer_list<double> parms;
    };
    const Section all[] = {
        {QOR::kOutlineHBeam, 0, 0, {200, 200, 9, 15, 18}},
        {QOR::kOutlineAngleEqual, 170, -100, {100, 10, 12, 6}},
        {QOR::kOutlineChannel, -300, -100, {200, 75, 8.5, 11.5, 11.5}},
        {QOR::kOutlineTube, 0, 230, {168.3, 8}},
        {QOR::kOutlineRhs, 250, 200, {200, 100, 8, 16}},
        {QOR::kOutlineFlat, -250, 200, {150, 20}},
    };
    CQorArrayTempl<CQorVertexArray> out;
    for (const Section& s : all) {
        CQorArrayTempl<double> parms;
        for (double p : s.parms)
            parms.append(p);
        const CQorVertexArray vl = QOR::g_outline(s.code, CQorVector3d(s.x, s.y, 0), parms);
        if (vl.len() > 0)
            out.append(vl);
    }
    return out;
}

// The colour of marked items is the host's (configuration "ORV_MENU\COLOR", key
// "HIGHLIGHT"); where the host has none configured, the viewer as host takes red.
void highlightColorEnsure() {
    CQorDataItem* dir = QOR::cfg_dir_make(L"ORV_MENU\\COLOR");
    const CQorDataKey key(L"HIGHLIGHT");
    CQorColor configured;
    if (dir && !dataItemGet(dir, &key, configured))
        dataItemSet(dir, &key, 1);
}

class CViewer;

// The top-level window: keeps the shown window as large as its client area and
// names the picked group in its title.
class CViewerFrame : public CWnd {
public:
    explicit CViewerFrame(CViewer& viewer) : m_viewer(viewer) {}
    ~CViewerFrame() override { DestroyWindow(); }

protected:
    void OnSize(UINT type, int cx, int cy);
    void OnDestroy();
    LRESULT OnPicked(WPARAM, LPARAM group);
    LRESULT OnVllPicked(WPARAM, LPARAM group);
    DECLARE_MESSAGE_MAP()

private:
    CViewer& m_viewer;
};

class CViewer {
public:
    explicit CViewer(const ViewerOptions& options) : m_options(options), m_frame(*this) {}
    ~CViewer() {
        // The children go before the frame, and the document after its window.
        m_image.reset();
        m_vll.reset();
        m_slide.reset();
        m_picture.reset();
        m_frame.DestroyWindow();
    }
    CViewer(const CViewer&) = delete;
    CViewer& operator=(const CViewer&) = delete;

    // Makes the windows and loads what is to be shown; 0 or the program's status.
    int open();
    // Handles a key of the viewer; false for a key it leaves to the windows.
    bool key(WPARAM vk);
    void layout(int cx, int cy);
    void picked(const wchar_t* what, LPARAM group);
    HWND shown() const { return m_shown ? m_shown->m_hWnd : nullptr; }
    CWnd& frame() { return m_frame; }

private:
    int pages() const { return m_target.kind == ViewKind::Model ? count() + 1 : 1; }
    void showPage(int page);
    void show(CWnd* wnd);
    void fit();
    void title(const std::wstring& text);

    ViewerOptions m_options;
    ViewTarget m_target;
    Inputs m_in;
    CQorDataItem m_model{1};
    CViewerFrame m_frame;
    std::unique_ptr<CQorGDX> m_gdx;
    std::unique_ptr<CQorDplistImage> m_image;
    std::unique_ptr<CQorVllImage> m_vll;
    std::unique_ptr<QOR::CSlidePic> m_slide;
    std::unique_ptr<QOR::CPicture> m_picture;
    CWnd* m_shown = nullptr;
    int m_page = 0;
    std::wstring m_title;
};

BEGIN_MESSAGE_MAP(CViewerFrame, CWnd)
ON_WM_SIZE()
ON_WM_DESTROY()
ON_MESSAGE(kImageId, &CViewerFrame::OnPicked)
ON_MESSAGE(kVllId, &CViewerFrame::OnVllPicked)
END_MESSAGE_MAP()

void CViewerFrame::OnSize(UINT, int cx, int cy) {
    m_viewer.layout(cx, cy);
}

void CViewerFrame::OnDestroy() {
    Default();
    PostQuitMessage(0);
}

LRESULT CViewerFrame::OnPicked(WPARAM, LPARAM group) {
    m_viewer.picked(L"group", group);
    return 0;
}

LRESULT CViewerFrame::OnVllPicked(WPARAM, LPARAM group) {
    // Path 0 is the base point, path i + 1 the array i.
    m_viewer.picked(group == 0 ? L"base point" : L"array", group - 1);
    return 0;
}

int CViewer::open() {
    m_target = viewTargetParse(m_options.name);
    if (m_target.kind == ViewKind::None) {
        std::fprintf(stderr,
                     "viewer: %ls is no model (.qdt), slide (.sld, lib.slb:NAME) or "
                     "picture (.bmp, .ico, .jpg, ...)\n",
                     m_options.name.c_str());
        return 2;
    }
    if (GetFileAttributesW(m_target.file.c_str()) == INVALID_FILE_ATTRIBUTES) {
        std::fprintf(stderr, "viewer: %ls not found\n", m_target.file.c_str());
        return 1;
    }
    if (m_target.kind == ViewKind::Model) {
        CQorString error;
        if (!QOR::dataTextReadFile(m_target.file.c_str(), m_model, error)) {
            std::fprintf(stderr, "viewer: cannot read the model %ls: %ls\n", m_target.file.c_str(),
                         error.c_str());
            return 1;
        }
        m_in.modelDir = folderOf(m_target.file);
        m_in.slideLib = m_options.slideLib.empty() ? m_in.modelDir + L"..\\slides\\mylib.slb"
                                                   : m_options.slideLib;
    }

    const DWORD style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    RECT outer = {0, 0, m_options.width, m_options.height};
    AdjustWindowRect(&outer, style, FALSE);
    const CRect at(0, 0, outer.right - outer.left, outer.bottom - outer.top);
    if (!m_frame.CreateEx(0, nullptr, L"QOR viewer", style, at, nullptr, 0)) {
        std::fprintf(stderr, "viewer: no window (error %lu)\n", GetLastError());
        return 2;
    }
    const CRect client(0, 0, m_options.width, m_options.height);
    const DWORD child = WS_CHILD | WS_CLIPSIBLINGS;
    switch (m_target.kind) {
    case ViewKind::Model:
        highlightColorEnsure();
        m_image = std::make_unique<CQorDplistImage>();
        m_vll = std::make_unique<CQorVllImage>();
        if (!m_image->Create(nullptr, L"", child, client, &m_frame, kImageId) ||
            !m_vll->Create(nullptr, L"", child, client, &m_frame, kVllId))
            return 2;
        showPage(m_options.page >= 0 && m_options.page < pages() ? m_options.page : 0);
        break;
    case ViewKind::Slide:
    case ViewKind::LibrarySlide: {
        m_slide = std::make_unique<QOR::CSlidePic>();
        if (!m_slide->Create(nullptr, L"", child, client, &m_frame, kSlideId))
            return 2;
        const bool ok = m_target.kind == ViewKind::Slide
                            ? m_slide->show(m_target.file.c_str(), nullptr)
                            : m_slide->show(m_target.member.c_str(), m_target.file.c_str());
        if (!ok) {
            std::fprintf(stderr, "viewer: no slide in %ls\n", m_options.name.c_str());
            return 1;
        }
        show(m_slide.get());
        title(m_target.kind == ViewKind::Slide
                  ? L"slide " + fileNameOf(m_target.file)
                  : L"slide " + m_target.member + L" of " + fileNameOf(m_target.file));
        break;
    }
    case ViewKind::Picture:
        m_picture = std::make_unique<QOR::CPicture>();
        if (!m_picture->Create(nullptr, L"", child, client, &m_frame, kPictureId))
            return 2;
        m_picture->LoadImageW(m_target.file.c_str());
        if (!m_picture->hasPicture()) {
            std::fprintf(stderr, "viewer: %ls does not load as a picture\n", m_target.file.c_str());
            return 1;
        }
        show(m_picture.get());
        title(L"picture " + fileNameOf(m_target.file) + L", " +
              std::to_wstring(m_picture->pixelSize().cx) + L" x " +
              std::to_wstring(m_picture->pixelSize().cy) + L" pixels");
        break;
    case ViewKind::None:
        break;
    }
    m_frame.ShowWindow(SW_SHOW);
    m_frame.UpdateWindow();
    return 0;
}

void CViewer::show(CWnd* wnd) {
    if (m_shown == wnd)
        return;
    if (m_shown)
        m_shown->ShowWindow(SW_HIDE);
    m_shown = wnd;
    CRect client;
    m_frame.GetClientRect(&client);
    m_shown->MoveWindow(0, 0, client.Width(), client.Height(), FALSE);
    m_shown->ShowWindow(SW_SHOW);
}

void CViewer::showPage(int page) {
    m_page = page;
    if (page == count()) {
        show(m_vll.get());
        m_vll->setVll(sections());
        m_vll->SetCurVl(0);
        title(L"vertex list view (" + std::to_wstring(page + 1) + L"/" + std::to_wstring(pages()) +
              L"): standard sections, the first marked");
        return;
    }
    auto next = std::make_unique<CQorGDX>();
    const Document d = build(page, m_model, m_in, *next);
    show(m_image.get());
    m_image->set_dpList(next.get());
    m_gdx = std::move(next);
    m_image->zoomExtents();
    title(d.name + L" (" + std::to_wstring(page + 1) + L"/" + std::to_wstring(pages()) + L"): " +
          widen(d.title) + (d.built ? L"" : L" - nothing drawn"));
}

void CViewer::title(const std::wstring& text) {
    m_title = L"QOR viewer - " + text;
    m_frame.SetWindowText(m_title.c_str());
}

void CViewer::fit() {
    if (m_shown == m_image.get())
        m_image->zoomExtents();
    else if (m_shown == m_vll.get())
        m_vll->zoomExtents();
    else if (m_shown == m_picture.get())
        m_picture->Reset();
    if (m_shown)
        m_shown->InvalidateRect(nullptr, TRUE);
}

void CViewer::layout(int cx, int cy) {
    if (!m_shown)
        return;
    m_shown->MoveWindow(0, 0, cx, cy, TRUE);
    fit();
}

void CViewer::picked(const wchar_t* what, LPARAM group) {
    std::wstring text = m_title + L" - picked " + what;
    if (group >= 0)
        text += L" " + std::to_wstring(group);
    m_frame.SetWindowText(text.c_str());
}

bool CViewer::key(WPARAM vk) {
    if (vk == VK_ESCAPE) {
        m_frame.DestroyWindow();
        return true;
    }
    if (vk == 'F') {
        fit();
        return true;
    }
    const int page = pageForKey(static_cast<int>(vk), m_page, pages());
    if (page < 0 || m_target.kind != ViewKind::Model)
        return false;
    if (page != m_page || m_shown == nullptr)
        showPage(page);
    return true;
}

// Dispatches what the queue holds for a while, so that the window is shown and
// painted; a window left invalid cannot keep it busy for longer.
void settle(DWORD ms) {
    const DWORD start = GetTickCount();
    MSG msg;
    do {
        for (int k = 0; k < 500 && PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE); ++k) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        Sleep(10);
    } while (GetTickCount() - start < ms);
}

} // namespace

int runViewer(const ViewerOptions& options) {
    if (options.width < 1 || options.height < 1)
        return 2;
    const bool screenshot = !options.screenshot.empty();
    if (!screenshot && !displayPresent()) {
        std::fprintf(stderr, "viewer: no display to show the window on; "
                             "use --screenshot FILE.png to paint it into a file\n");
        return 2;
    }
    if (screenshot && options.timeoutSeconds > 0) {
        HANDLE t = CreateThread(nullptr, 0, watchdog,
                                reinterpret_cast<LPVOID>(static_cast<UINT_PTR>(
                                    static_cast<unsigned>(options.timeoutSeconds))),
                                0, nullptr);
        if (t)
            CloseHandle(t);
    }
    OleInitialize(nullptr);
    int status = 0;
    {
        CViewer viewer(options);
        status = viewer.open();
        if (status == 0 && screenshot) {
            settle(kSettleMs);
            if (options.clickX >= 0 && options.clickY >= 0) {
                const LPARAM at = MAKELPARAM(options.clickX, options.clickY);
                SendMessageW(viewer.shown(), WM_LBUTTONDOWN, MK_LBUTTON, at);
                SendMessageW(viewer.shown(), WM_LBUTTONUP, 0, at);
                settle(kSettleMs / 3);
            }
            wchar_t text[512] = {};
            GetWindowTextW(viewer.frame().m_hWnd, text, 512);
            std::printf("title: %ls\n", text);
            // One more paint, done now, so that the copy sees the finished picture.
            RedrawWindow(viewer.shown(), nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            status = windowToPng(viewer.shown(), options.screenshot) ? 0 : 3;
            if (status == 0)
                std::printf("screenshot of %ls written to %ls\n", options.name.c_str(),
                            options.screenshot.c_str());
        } else if (status == 0) {
            MSG msg;
            while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
                if (msg.message == WM_KEYDOWN && viewer.key(msg.wParam))
                    continue;
                TranslateMessage(&msg);
                DispatchMessageW(&msg);
            }
        }
    }
    CWnd::DeleteTempMap();
    OleUninitialize();
    return status;
}

} // namespace demo

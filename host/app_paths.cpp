#include "host/app_paths.h"

#include "foundation/base/file_io.h"

#include <map>
#include <string>
#include <vector>

namespace {

std::vector<std::wstring>& paths() {
    static std::vector<std::wstring> p;
    return p;
}

// Application name in capitals -> help location.
std::map<std::wstring, std::wstring>& helps() {
    static std::map<std::wstring, std::wstring> h;
    return h;
}

std::wstring upper(const wchar_t* s) {
    std::wstring out;
    for (; s && *s; ++s)
        out += QOR::toUpper(*s);
    return out;
}

bool isSeparator(wchar_t c) {
    return c == L'/' || c == L'\\';
}

} // namespace

namespace QOR {
namespace host {

void appPathAdd(const wchar_t* folder) {
    if (folder && *folder)
        paths().push_back(folder);
}

void appPathsClear() {
    paths().clear();
}

void helpRegister(const wchar_t* app, const wchar_t* location) {
    if (!app)
        return;
    if (!location || !*location)
        helps().erase(upper(app));
    else
        helps()[upper(app)] = location;
}

bool appFileFind(CQorString& out, const wchar_t* name) {
    if (!name || !*name)
        return false;
    if (fileReadable(name)) {
        out = name;
        return true;
    }
    for (const std::wstring& folder : paths()) {
        std::wstring path = folder;
        if (!isSeparator(path.back()))
            path += L'/';
        path += name;
        if (fileReadable(path.c_str())) {
            out = path.c_str();
            return true;
        }
    }
    return false;
}

bool appHelpFind(const wchar_t* app, CQorString& out) {
    if (!app || !*app)
        return false;
    const auto h = helps().find(upper(app));
    if (h != helps().end()) {
        out = h->second.c_str();
        return true;
    }
    return appFileFind(out, (CQorString(app) + L".chm").c_str());
}

} // namespace host
} // namespace QOR

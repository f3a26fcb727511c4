// CMenu: a menu owned by the object (destroyed with it unless detached).
#pragma once

#include "foundation/base/qor_export.h"
#include "framework/runtime_class.h"

#include <windows.h>

class CWnd;

class QOR_API CMenu {
public:
    CMenu() = default;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;
    virtual ~CMenu();

    static const CRuntimeClass* GetThisClass();
    virtual const CRuntimeClass* GetRuntimeClass() const;
    bool IsKindOf(const CRuntimeClass* cls) const { return GetRuntimeClass()->IsDerivedFrom(cls); }

    HMENU m_hMenu = nullptr;
    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }

    // False when this object holds a menu already.
    BOOL CreatePopupMenu();
    // flags are the MF_ values; id the command of the item.
    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, LPCWSTR text = nullptr);
    // -1 without a menu.
    int GetMenuItemCount() const;
    UINT GetMenuItemID(int position) const;
    // The item's text into buffer; its length.
    int GetMenuString(UINT item, LPWSTR buffer, int count, UINT flags) const;
    // Shows the menu at the screen point; with TPM_RETURNCMD the chosen command
    // (0: none), else nonzero on success and the command goes to owner.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, LPCRECT rect = nullptr);
    BOOL DestroyMenu();
    HMENU Detach();
};

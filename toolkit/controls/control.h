#pragma once
// CControlUI: the base of every control. A control owns its geometry,
// colours and texts; the paint manager drives layout, painting and input.
//
// Painting follows a fixed order of steps, each a virtual member:
// background colour, background image, state image, text, border. Every
// step paints from the control's current state only; setters that change
// what is visible return early when nothing changed and invalidate
// otherwise.

#include <string>

#include "toolkit/core/attributes.h"
#include "toolkit/core/ui_base.h"
#include "toolkit/render/render_context.h"

namespace DuiLib {

class CPaintManagerUI;

class CControlUI
{
public:
    CControlUI();
    virtual ~CControlUI();
    CControlUI(const CControlUI&) = delete;
    CControlUI& operator=(const CControlUI&) = delete;

    virtual CDuiString GetName() const;
    virtual void SetName(LPCTSTR pstrName);
    virtual LPCTSTR GetClass() const;
    // Returns this object seen as the named interface, or null.
    virtual LPVOID GetInterface(LPCTSTR pstrName);
    virtual UINT GetControlFlags() const;

    // Performs the control's action as if clicked; false when disabled or
    // hidden.
    virtual bool Activate();
    virtual CPaintManagerUI* GetManager() const;
    virtual void SetManager(CPaintManagerUI* pManager, CControlUI* pParent, bool bInit = true);
    virtual CControlUI* GetParent() const;

    virtual CDuiString GetText() const;
    virtual void SetText(LPCTSTR pstrText);

    DWORD GetBkColor() const { return m_dwBackColor; }
    void SetBkColor(DWORD dwBackColor);
    DWORD GetForeColor() const { return m_dwForeColor; }
    void SetForeColor(DWORD dwForeColor);
    DWORD GetBorderColor() const { return m_dwBorderColor; }
    void SetBorderColor(DWORD dwBorderColor);
    DWORD GetFocusBorderColor() const { return m_dwFocusBorderColor; }
    void SetFocusBorderColor(DWORD dwBorderColor);
    int GetBorderSize() const { return m_nBorderSize; }
    void SetBorderSize(int nSize);
    SIZE GetBorderRound() const { return m_cxyBorderRound; }
    void SetBorderRound(SIZE cxyRound);
    CDuiString GetBkImage() const { return m_sBkImage; }
    void SetBkImage(LPCTSTR pStrImage);

    virtual const RECT& GetPos() const;
    virtual void SetPos(RECT rc, bool bNeedInvalidate = true);
    int GetWidth() const { return m_rcItem.right - m_rcItem.left; }
    int GetHeight() const { return m_rcItem.bottom - m_rcItem.top; }
    int GetX() const { return m_rcItem.left; }
    int GetY() const { return m_rcItem.top; }
    virtual RECT GetPadding() const;
    virtual void SetPadding(RECT rcPadding);
    // Fixed sizes are in logical units; 0 means "take what the layout gives".
    virtual int GetFixedWidth() const;
    virtual void SetFixedWidth(int cx);
    virtual int GetFixedHeight() const;
    virtual void SetFixedHeight(int cy);
    int GetMinWidth() const { return m_cxyMin.cx; }
    void SetMinWidth(int cx);
    int GetMaxWidth() const { return m_cxyMax.cx; }
    void SetMaxWidth(int cx);
    int GetMinHeight() const { return m_cxyMin.cy; }
    void SetMinHeight(int cy);
    int GetMaxHeight() const { return m_cxyMax.cy; }
    void SetMaxHeight(int cy);

    // A floating control keeps out of its container's layout and stands at
    // its fixed position, relative to the container's rectangle: x and y
    // from the left and top edges, or, when negative, from the right and
    // bottom edges (DuiLib's float="true" pos="l,t,r,b").
    bool IsFloat() const { return m_bFloat; }
    void SetFloat(bool bFloat = true);
    SIZE GetFixedXY() const { return m_cXY; }
    void SetFixedXY(SIZE szXY);
    // The `pos` attribute: the fixed position and, for any control, the
    // fixed size (right - left, bottom - top).
    void SetPosAttribute(RECT rcPos);

    virtual CDuiString GetToolTip() const;
    virtual void SetToolTip(LPCTSTR pstrText);

    const CDuiString& GetUserData() const { return m_sUserData; }
    void SetUserData(LPCTSTR pstrText) { m_sUserData = pstrText; }
    UINT_PTR GetTag() const { return m_pTag; }
    void SetTag(UINT_PTR pTag) { m_pTag = pTag; }

    // The `virtualwnd` of this control, or of its nearest ancestor that has
    // one; notifications carry it so that CNotifyPump can route them.
    CDuiString GetVirtualWnd() const;
    void SetVirtualWnd(LPCTSTR pstrValue);

    virtual bool IsVisible() const;
    virtual void SetVisible(bool bVisible = true);
    // Visibility imposed by the parent (a tab layout hides its other pages).
    virtual void SetInternVisible(bool bVisible = true);
    virtual bool IsEnabled() const;
    virtual void SetEnabled(bool bEnable = true);
    virtual bool IsMouseEnabled() const;
    virtual void SetMouseEnabled(bool bEnable = true);
    virtual bool IsKeyboardEnabled() const;
    virtual void SetKeyboardEnabled(bool bEnable = true);
    virtual bool IsFocused() const;
    virtual void SetFocus();
    // Whether the border is painted in the focus border colour: when the
    // control has the focus (a list also when one of its rows has it).
    virtual bool ShowsFocusRing() const;

    // Depth-first search; see UIFIND_* for the flags.
    virtual CControlUI* FindControl(FINDCONTROLPROC Proc, LPVOID pData, UINT uFlags);

    void Invalidate();
    bool IsUpdateNeeded() const { return m_bUpdateNeeded; }
    void NeedUpdate();
    void NeedParentUpdate();

    virtual void Init();
    virtual void DoInit();

    // Handles one input event. A control that does not use the event passes
    // it to its parent, so rows see clicks on their labels.
    virtual void Event(TEventUI& event);
    virtual void DoEvent(TEventUI& event);

    // Applies one skin attribute. Throws AttributeError for a name this
    // control does not know or a value it cannot read.
    virtual void SetAttribute(LPCTSTR pstrName, LPCTSTR pstrValue);
    // Applies  name="value" name2="value2" ...  in order.
    CControlUI* ApplyAttributeList(LPCTSTR pstrList);

    // The size this control wants within `szAvailable`; 0 in a dimension
    // means "whatever the layout gives".
    virtual SIZE EstimateSize(SIZE szAvailable);

    virtual void DoPaint(RenderContext& ctx, const RECT& rcPaint);
    // Which corners the border round applies to (all, for most controls).
    virtual RoundCorners GetRoundCorners() const { return RoundCorners::All; }
    virtual void PaintBkColor(RenderContext& ctx);
    virtual void PaintBkImage(RenderContext& ctx);
    virtual void PaintStatusImage(RenderContext& ctx);
    virtual void PaintText(RenderContext& ctx);
    virtual void PaintBorder(RenderContext& ctx);

protected:
    // Whether a search with these flags looks at this control (and, for a
    // container, inside it): visible and enabled as asked, and holding the
    // point of a hit test.
    bool IsSearchedBy(LPVOID pData, UINT uFlags) const;
    // Draws an image string (a path or DuiLib's file='' dest='' form)
    // relative to the control's rectangle; false when it cannot be drawn.
    bool DrawImage(RenderContext& ctx, const CDuiString& image);

    CPaintManagerUI* m_pManager = nullptr;
    CControlUI* m_pParent = nullptr;
    CDuiString m_sName;
    CDuiString m_sText;
    CDuiString m_sToolTip;
    CDuiString m_sUserData;
    CDuiString m_sVirtualWnd;
    UINT_PTR m_pTag = 0;
    RECT m_rcItem{0, 0, 0, 0};
    RECT m_rcPadding{0, 0, 0, 0};
    SIZE m_cxyFixed{0, 0};
    SIZE m_cXY{0, 0};
    bool m_bFloat = false;
    SIZE m_cxyMin{0, 0};
    SIZE m_cxyMax{9999, 9999};
    bool m_bVisible = true;
    bool m_bInternVisible = true;
    bool m_bEnabled = true;
    bool m_bMouseEnabled = true;
    bool m_bKeyboardEnabled = true;
    bool m_bFocused = false;
    bool m_bUpdateNeeded = true;
    DWORD m_dwBackColor = 0;
    DWORD m_dwForeColor = 0;
    DWORD m_dwBorderColor = 0;
    DWORD m_dwFocusBorderColor = 0;
    int m_nBorderSize = 0;
    SIZE m_cxyBorderRound{0, 0};
    CDuiString m_sBkImage;
};

// True when the control and every one of its ancestors are visible, so that
// it can be seen once it is inside the window.
bool IsControlShown(const CControlUI* control);

// Whether two values of a control's state are the same.
inline bool SameValue(const RECT& a, const RECT& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
inline bool SameValue(const SIZE& a, const SIZE& b)
{
    return a.cx == b.cx && a.cy == b.cy;
}
template <class T> bool SameValue(const T& a, const T& b)
{
    return a == b;
}

// Stores `value` in `member`; false when it held that value already, so
// that a setter invalidates only on a change.
template <class T, class U> bool Assign(T& member, const U& value)
{
    const T next = static_cast<T>(value);
    if (SameValue(member, next))
        return false;
    member = next;
    return true;
}

// Looks `name` up in a table of attribute setters and applies it; false
// when the table has no such name.
template <class Control>
using AttributeSetter = void (*)(Control&, const wchar_t* name, const wchar_t* value);

template <class Control, class Table>
bool ApplyFromTable(const Table& table, Control& control, LPCTSTR name, LPCTSTR value)
{
    const auto found = table.find(name ? name : L"");
    if (found == table.end())
        return false;
    found->second(control, name, value ? value : L"");
    return true;
}

} // namespace DuiLib

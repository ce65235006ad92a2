#include "toolkit/window/message_box.h"

#include "toolkit/controls/button.h"
#include "toolkit/controls/label.h"
#include "toolkit/window/window_impl_base.h"

namespace DuiLib {

namespace {

// The box's own skin, kept in the code so that a box can always be shown,
// whatever skin folder the application uses.
constexpr const wchar_t* kMessageBoxSkin = LR"(<Window size="420,200" roundcorner="12,12">
  <Font id="0" name="Noto Sans" size="16" bold="true" />
  <Font id="1" name="Noto Sans" size="13" />
  <Default name="Button" value="height=&quot;36&quot; width=&quot;128&quot; borderround=&quot;18,18&quot; font=&quot;1&quot; focusbordercolor=&quot;#FF0A59F7&quot; bordersize=&quot;2&quot;" />
  <VerticalLayout bkcolor="#FFFFFFFF" bordersize="1" bordercolor="#FFD5D9DF" borderround="12,12" inset="24,20,24,20">
    <HorizontalLayout height="28" childpadding="8">
      <Control name="mb_icon" width="24" height="24" visible="false" padding="0,2,0,0" />
      <Label name="mb_title" font="0" textcolor="#FF1A1A1A" endellipsis="true" />
      <Button name="mb_close" width="28" height="28" borderround="14,14" text="×" font="0" textcolor="#FF666666" hotbkcolor="#FFF0F1F3" pushedbkcolor="#FFE2E4E8" bordersize="0" visible="false" />
    </HorizontalLayout>
    <Text name="mb_detail" font="1" textcolor="#FF4D4D4D" padding="0,12,0,12" />
    <HorizontalLayout height="36" childpadding="12" childalign="right">
      <Button name="mb_first" bkcolor="#FF0A59F7" hotbkcolor="#FF2B6FF8" pushedbkcolor="#FF0847C6" textcolor="#FFFFFFFF" />
      <Button name="mb_second" bkcolor="#FFF0F1F3" hotbkcolor="#FFE5E7EB" pushedbkcolor="#FFD6D9DE" textcolor="#FF0A59F7" />
    </HorizontalLayout>
  </VerticalLayout>
</Window>)";

thread_local HWND t_activeBox = nullptr;

class MessageBoxWnd : public WindowImplBaseEx
{
public:
    MessageBoxWnd(LPCTSTR title, LPCTSTR detail, LPCTSTR first, LPCTSTR second, int buttons, LPCTSTR icon,
                  bool escapeCancels, bool showClose)
        : m_title(title), m_detail(detail), m_first(first), m_second(second), m_buttons(buttons),
          m_icon(icon), m_escapeCancels(escapeCancels), m_showClose(showClose)
    {
    }

protected:
    LPCTSTR GetWindowClassName() const override { return L"UIIMessageBox"; }
    CDuiString GetSkinFolder() override { return CDuiString(); }
    CDuiString GetSkinFile() override { return kMessageBoxSkin; }

    void InitWindow() override
    {
        Set(L"mb_title", m_title);
        Set(L"mb_detail", m_detail);
        Set(L"mb_first", m_first);
        Set(L"mb_second", m_second);
        if (CControlUI* second = m_pm.FindControl(L"mb_second"))
            second->SetVisible(m_buttons >= 2);
        if (CControlUI* close = m_pm.FindControl(L"mb_close"))
            close->SetVisible(m_showClose);
        if (CControlUI* icon = m_pm.FindControl(L"mb_icon"); icon != nullptr && !m_icon.IsEmpty()) {
            icon->SetBkImage(m_icon);
            icon->SetVisible(true);
        }
        if (CControlUI* first = m_pm.FindControl(L"mb_first"))
            m_pm.SetFocus(first);
    }

    void Notify(TNotifyUI& msg) override
    {
        if (msg.sType != DUI_MSGTYPE_CLICK || msg.pSender == nullptr)
            return;
        const CDuiString name = msg.pSender->GetName();
        if (name == L"mb_first")
            Close(1);
        else if (name == L"mb_second")
            Close(2);
        else if (name == L"mb_close")
            Close(0);
    }

    LRESULT HandleCustomMessage(UINT uMsg, WPARAM wParam, LPARAM, BOOL& bHandled) override
    {
        bHandled = FALSE;
        if (uMsg == WM_KEYDOWN && wParam == VK_ESCAPE && m_escapeCancels) {
            Close(0);
            bHandled = TRUE;
        }
        return 0;
    }

    void OnFinalMessage(HWND hWnd) override
    {
        WindowImplBaseEx::OnFinalMessage(hWnd);
        if (t_activeBox == hWnd)
            t_activeBox = nullptr;
    }

private:
    void Set(LPCTSTR name, const CDuiString& text)
    {
        if (CControlUI* control = m_pm.FindControl(name))
            control->SetText(text);
    }

    CDuiString m_title;
    CDuiString m_detail;
    CDuiString m_first;
    CDuiString m_second;
    int m_buttons;
    CDuiString m_icon;
    bool m_escapeCancels;
    bool m_showClose;
};

} // namespace

int UIIMessageBox::PopMessageBox(HWND hParent, LPCTSTR title, LPCTSTR detail, LPCTSTR firstButton,
                                 LPCTSTR secondButton, int buttonCount, LPCTSTR icon, bool centerOnParent,
                                 bool escapeCancels, bool showClose)
{
    MessageBoxWnd box(title, detail, firstButton, secondButton, buttonCount, icon, escapeCancels, showClose);
    const HWND hwnd = box.Create(centerOnParent ? hParent : nullptr, L"UIIMessageBox", 0, 0, 0, 0, 0, 0);
    if (hwnd == nullptr)
        return 0;
    const HWND outer = t_activeBox;
    t_activeBox = hwnd;
    box.CenterWindow();
    const int result = static_cast<int>(box.ShowModal());
    t_activeBox = outer;
    return result;
}

HWND UIIMessageBox::GetActiveBox()
{
    return t_activeBox;
}

} // namespace DuiLib

#pragma once
// CDialogBuilder: builds a control tree from DuiLib-format skin XML.
//
//   <Window size="600,400" caption="0,0,0,40" roundcorner="8,8" mininfo="400,300">
//     <Font id="0" name="Noto Sans" size="14" bold="true" />
//     <Default name="Button" value="textcolor=&quot;#FF333333&quot;" />
//     <VerticalLayout bkcolor="#FFFFFFFF"> ... </VerticalLayout>
//   </Window>
//
// Element names are control classes (Control, Container, VerticalLayout,
// HorizontalLayout, TabLayout, Label, Text, Button, Progress, List,
// ListContainerElement); any other name is offered to the callback's
// CreateControl. `text` and `tooltip` values of the form %[KEY] are looked
// up with CResourceManager::GetText. An unknown element, an unknown
// attribute or a bad value stops the build with one SkinError naming the
// file, the line and the element or attribute.

#include <memory>
#include <optional>
#include <string>

#include "toolkit/core/attributes.h"
#include "toolkit/core/ui_base.h"

namespace DuiLib {

class CControlUI;
class CPaintManagerUI;

class IDialogBuilderCallback
{
public:
    virtual ~IDialogBuilderCallback() = default;
    // A control for an element name the toolkit does not know, or null.
    virtual CControlUI* CreateControl(LPCTSTR pstrClass) = 0;
};

// A skin file name or XML text, as DuiLib's STRINGorID.
class STRINGorID
{
public:
    STRINGorID(LPCTSTR lpString) : m_lpstr(lpString) {} // NOLINT: implicit like DuiLib
    LPCTSTR m_lpstr;
};

class CDialogBuilder
{
public:
    CDialogBuilder();
    ~CDialogBuilder();

    // `xml` is a skin file relative to the resource path (or absolute), or
    // XML text when it starts with '<'. Returns the root control, owned by
    // the caller (or by pParent / the manager once attached), or null.
    CControlUI* Create(STRINGorID xml, LPCTSTR type = nullptr, IDialogBuilderCallback* pCallback = nullptr,
                       CPaintManagerUI* pManager = nullptr, CControlUI* pParent = nullptr);

    // With `duiLibOnly`, Create refuses (as a SkinError) attributes that
    // only this toolkit knows (IsToolkitExtension), so that a skin can be
    // checked to mean the same to DuiLib.
    void SetDuiLibOnly(bool duiLibOnly) { m_bDuiLibOnly = duiLibOnly; }

    // The error of the last Create, if it failed. The builder prints
    // nothing: whoever builds a skin decides how to tell of a failure, so
    // that a program says it once.
    const std::optional<SkinError>& GetError() const { return m_error; }
    IDialogBuilderCallback* GetCallback() const { return m_pCallback; }

private:
    struct Parser;
    IDialogBuilderCallback* m_pCallback = nullptr;
    std::optional<SkinError> m_error;
    bool m_bDuiLibOnly = false;
};

// True for an attribute name that this toolkit reads and DuiLib does not.
bool IsToolkitExtension(const std::wstring& attributeName);

// Makes the control for a built-in element name, or null.
CControlUI* CreateBuiltinControl(const std::wstring& className);

} // namespace DuiLib

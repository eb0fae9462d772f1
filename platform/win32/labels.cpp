#include <windows.h>

#include "platform/win32/colors.h"
#include "platform/win32/kind.h"
#include "platform/win32/metrics.h"

// What the player only looks at or clicks on: labels, pictures, frames.
namespace quirn {

namespace win32 {

namespace {

Look LabelLook(const Label& label) {
    // A label that shows data may get a tool tip at any time.
    const bool seesMouse = label.ShowsData() || !label.ToolTip().empty() || label.onClick;
    DWORD style = label.ShowsData() ? SS_NOPREFIX | SS_ENDELLIPSIS : 0;
    if (seesMouse) style |= SS_NOTIFY;
    switch (label.AlignmentUsed()) {
        case Alignment::Left: style |= SS_LEFT; break;
        case Alignment::Center: style |= SS_CENTER; break;
        case Alignment::Right: style |= SS_RIGHT; break;
    }
    return {.className = "STATIC", .style = style, .seesMouse = seesMouse};
}

void LabelCommand(Label& label, WORD code) {
    if (code == STN_CLICKED) label.UserClicks();
    if (code == STN_DBLCLK) label.UserDoubleClicks();
}

std::optional<LRESULT> LabelMessage(const Label& label, const Message& m) {
    if (m.message != WM_SETCURSOR || !label.onClick) return std::nullopt;
    SetCursor(LoadCursorA(nullptr, IDC_HAND));
    return TRUE;
}

Look PictureLook(const Picture& picture) {
    return {.className = "STATIC", .style = SS_OWNERDRAW | static_cast<DWORD>(picture.onClick ? SS_NOTIFY : 0)};
}

// The second click of two quick ones is a click as well.
void PictureCommand(Picture& picture, WORD code) {
    if (code == STN_CLICKED || code == STN_DBLCLK) picture.UserClicks();
}

void DrawPicture(const Picture& picture, const DRAWITEMSTRUCT& item) {
    const int width = item.rcItem.right - item.rcItem.left;
    const int height = item.rcItem.bottom - item.rcItem.top;
    const auto icon = static_cast<HICON>(
        LoadImageA(Instance(), MAKEINTRESOURCEA(picture.Resource()), IMAGE_ICON, width, height, LR_DEFAULTCOLOR));
    if (icon == nullptr) return;
    DrawIconEx(item.hDC, item.rcItem.left, item.rcItem.top, icon, width, height, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
}

Look FrameLook(const Frame& frame) {
    if (frame.Style() == FrameStyle::Panel) return {.className = "STATIC", .style = SS_OWNERDRAW, .liesOver = true};
    return {.className = "BUTTON", .style = BS_GROUPBOX, .framesOthers = true};
}

void DrawPanel(const Frame& panel, const DRAWITEMSTRUCT& item) {
    RECT area = item.rcItem;
    SetDCBrushColor(item.hDC, BackColorOf(panel).value_or(GetSysColor(COLOR_WINDOW)));
    FillRect(item.hDC, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    DrawEdge(item.hDC, &area, EDGE_RAISED, BF_RECT | BF_ADJUST);
    const HGDIOBJ before = SelectObject(item.hDC, FontFor(panel.FontUsed(), DpiOf(panel)));
    SetTextColor(item.hDC, ForeColorOf(panel).value_or(GetSysColor(COLOR_WINDOWTEXT)));
    SetBkMode(item.hDC, TRANSPARENT);
    constexpr int kTextTop = 120;  // twips
    area.top += ToPixels(kTextTop, DpiOf(panel));
    DrawTextA(item.hDC, panel.Text().c_str(), -1, &area, DT_CENTER | DT_SINGLELINE);
    SelectObject(item.hDC, before);
}

}  // namespace

}  // namespace win32

namespace native {

using namespace win32;

const Kind kLabel{.look = For<LabelLook>, .command = For<LabelCommand>, .message = For<LabelMessage>};
const Kind kPicture{.look = For<PictureLook>, .command = For<PictureCommand>, .draw = For<DrawPicture>};
const Kind kFrame{.look = For<FrameLook>, .draw = For<DrawPanel>};

}  // namespace native

}  // namespace quirn

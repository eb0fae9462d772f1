#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/form.h"

namespace quirn {

// The program's icon in the notification area. Mouse messages on it arrive through the form's window.
class TrayIcon {
public:
    TrayIcon(Form& form, std::string tip) : form_(&form), tip_(std::move(tip)) {}
    ~TrayIcon() { Remove(); }
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;

    void Add();  // the form must be loaded; the icon comes back by itself when the shell restarts
    void Remove();
    bool IsThere() const { return there_; }
    void ShowBalloon(const std::string& title, const std::string& text);  // goes by itself; at most 63 and 255 bytes
    Form& Owner() const { return *form_; }
    const std::string& Tip() const { return tip_; }  // shown while the pointer is over it

    std::function<void(unsigned)> onMouse;  // a mouse message (WM_...) on the icon

    void UserPoints(unsigned mouseMessage);  // for the back end

private:
    Form* form_;
    std::string tip_;
    bool there_ = false;
};

inline constexpr unsigned kMouseLeftDoubleClick = 515, kMouseRightDown = 516;

}  // namespace quirn

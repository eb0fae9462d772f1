#include "auxiliary/urllink.h"

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace quirn {

namespace {

constexpr char kDefaultText[] = "Example Home Page";
constexpr char kDefaultURL[] = "www.home.example/";

std::string ValueIn(const URLLink::PropertyBag& bag, const char* name, const char* defaultValue) {
    const auto found = bag.find(name);
    return found == bag.end() ? defaultValue : found->second;
}

void Keep(URLLink::PropertyBag& bag, const char* name, const std::string& value, const std::string& defaultValue) {
    if (value == defaultValue) bag.erase(name);
    else bag[name] = value;
}

}  // namespace

URLLink::URLLink(Parent parent, const Bounds& place)
    : form_(parent.container->Owner()), lblURL(parent, place, kDefaultText) {
    lblURL.SetForeColor(kLinkColor);
    lblURL.onClick = [this] { lblURL_MouseDown(); };
    lblURL.onDoubleClick = [] {};  // has been opened by the first of the two clicks
    InitProperties();
}

void URLLink::SetText(const std::string& text) {
    lblURL.SetText(text);
    changed_ = true;
}

void URLLink::SetURL(const std::string& url) {
    url_ = url;
    ShowURLAsToolTip();
    changed_ = true;
}

void URLLink::SetShowToolTip(bool show) {
    showToolTip_ = show;
    ShowURLAsToolTip();
    changed_ = true;
}

void URLLink::InitProperties() {
    ReadProperties({});
}

void URLLink::ReadProperties(const PropertyBag& bag) {
    lblURL.SetText(ValueIn(bag, "Text", kDefaultText));
    url_ = ValueIn(bag, "URL", kDefaultURL);
    showToolTip_ = ValueIn(bag, "ShowToolTip", "0") != "0";
    ShowURLAsToolTip();
    changed_ = false;
}

void URLLink::WriteProperties(PropertyBag& bag) {
    Keep(bag, "Text", Text(), kDefaultText);
    Keep(bag, "URL", url_, kDefaultURL);
    Keep(bag, "ShowToolTip", showToolTip_ ? "-1" : "0", "0");  // a boolean as the property store writes it
    changed_ = false;
}

void URLLink::ShowURLAsToolTip() {
    lblURL.SetToolTip(showToolTip_ ? url_ : std::string());
}

void URLLink::lblURL_MouseDown() {
    if (url_.empty()) return;
    if (OpenWithRegisteredProgram(form_, url_)) ShowMessage("Unable to load '" + url_ + "'", kExclamation);
}

}  // namespace quirn

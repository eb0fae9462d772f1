#pragma once

#include <map>
#include <string>

#include "platform/controls.h"

namespace quirn {

// A label that opens an address, or any document with a registered program, when it is clicked.
class URLLink {
public:
    // The three properties by their names, as the window that holds the link keeps them.
    using PropertyBag = std::map<std::string, std::string>;

    URLLink(Parent parent, const Bounds& place);

    // Text displayed in control
    const std::string& Text() const { return lblURL.Text(); }
    // URL loaded when mouse is clicked over text. May also be a data file that has an extension registered; empty, a
    // click does nothing
    const std::string& URL() const { return url_; }
    // Determines if the URL is displayed in a tooltip when the mouse is parked over the text
    bool ShowToolTip() const { return showToolTip_; }
    void SetText(const std::string& text);
    void SetURL(const std::string& url);
    void SetShowToolTip(bool show);
    void SetVisible(bool visible) { lblURL.SetVisible(visible); }

    // True when a property has been set since the properties were last read or written.
    bool Changed() const { return changed_; }

    void InitProperties();
    void ReadProperties(const PropertyBag& bag);  // missing ones get their defaults
    void WriteProperties(PropertyBag& bag);       // those that differ from their defaults

private:
    void lblURL_MouseDown();
    void ShowURLAsToolTip();

    Form& form_;
    Label lblURL;
    std::string url_;
    bool showToolTip_ = false;
    bool changed_ = false;
};

}  // namespace quirn

#pragma once

#include <string>

#include "auxiliary/urllink.h"
#include "platform/form.h"

namespace quirn {

// The about box: name, version, a link, and quotes that change by themselves. Typing a certain word shows another one.
class frmAbout : public Form {
public:
    frmAbout();

private:
    void Form_Load();
    void Form_KeyPress(char key);
    void NextQuote();
    void Quote_Click();
    void ShowSecret();
    void cmdSysInfo_Click();

    Picture Image1;
    Label lblVersion;
    Label lblDescription;
    Label lblDisclaimer;
    Label lblInfo;
    URLLink URLLink1;  // a label, which the keyboard does not reach: the Help menu has the same address
    Picture pctCookie;
    Label lblQuote;
    Label lblSecret;
    Button cmdCookie;
    Button cmdOK;
    Button cmdSysInfo;
    Timer tmrCookie;

    size_t quote_ = 0;
    std::string typed_;  // the last characters, at most 50
};

}  // namespace quirn

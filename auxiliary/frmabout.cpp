#include "auxiliary/frmabout.h"

#include "auxiliary/addresses.h"
#include "auxiliary/opendocument.h"
#include "auxiliary/quotes.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/measures.h"
#include "platform/registry.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/version.h"
#include "resources/resource.h"

namespace quirn {

namespace {

constexpr int kWidth = 6480;
constexpr int kHeight = 4665;

// clang-format off
//                              left   top  width  height
constexpr Bounds kImage{         180,  180,  960,   960};
constexpr Bounds kVersion{      1380,  180, 4920,   210};
constexpr Bounds kDescription{  1380,  435, 4920,   210};
constexpr Bounds kInfo{         1380,  690, 4920,   210};
constexpr Bounds kLink{         1380,  960, 3600,   210};
constexpr Bounds kCookie{        180, 1350,  960,   960};
constexpr Bounds kQuote{        1380, 1440, 4920,  1080};
constexpr Bounds kCookieButton{  180, 2640, 4200, kButtonHeight};
constexpr Bounds kDisclaimer{    180, 3150, 6120,   840};
constexpr Bounds kOk{           3300, 4140, 1440, kButtonHeight};
constexpr Bounds kSysInfo{      4860, 4140, 1440, kButtonHeight};
// With the hidden quote:
constexpr Bounds kSecretCookie{  180,  100,  960,   960};
constexpr Bounds kSecret{       1380,  350, 4920,  1500};
// clang-format on

constexpr int kQuoteInterval = 7000;  // milliseconds
constexpr size_t kQuoteWithSound = 32;
constexpr char kSoundFile[] = "\\thwfih.dll";  // a sound recording, in spite of its name

constexpr char kSecretWord[] = "ZANTEK";
constexpr size_t kLongestTyped = 50;

// "\r" stands for a line break, which a label writes as two characters.
std::string Lines(const char* text) {
    std::string lines;
    for (; *text != '\0'; ++text) {
        lines += *text;
        if (*text == '\r') lines += '\n';
    }
    return lines;
}

std::string SystemInformationTool() {
    std::string path = ReadMachineText("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
    if (!path.empty()) return path;
    path = ReadMachineText("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
    return path.empty() ? path : path + "\\MSINFO32.EXE";
}

}  // namespace

frmAbout::frmAbout()
    : Form(FormBorder::Dialog, kWidth, kHeight),
      Image1(*this, kImage, IDI_QUIRN),
      lblVersion(*this, kVersion, "Version " + VersionText()),
      lblDescription(*this, kDescription, std::string(kFullTitle) + ": your settings, one click away."),
      lblDisclaimer(
          *this, kDisclaimer,
          "QUIRN is a tool by players for players and comes without any warranty. It changes the game's settings "
          "and a few files in its folder, nothing else; keep your profiles and you can always go back."),
      lblInfo(*this, kInfo, "SubSpace and its name belong to their owners."),
      URLLink1(*this, kLink),
      pctCookie(*this, kCookie, IDI_COOKIE),
      lblQuote(*this, kQuote, ""),
      lblSecret(*this, kSecret, Lines(kSecretQuote)),
      cmdCookie(*this, kCookieButton, "Press me to leave this horrible excuse for a cookie..."),
      cmdOK(*this, kOk, "OK"),
      cmdSysInfo(*this, kSysInfo, "&Sys Info...") {
    SetCaption(std::string("About ") + kTitle);
    SetButtons(&cmdOK, &cmdOK);
    lblVersion.SetFont({"", 8, true});
    lblSecret.SetVisible(false);
    cmdCookie.SetVisible(false);
    URLLink1.SetText("Click here to visit the QUIRN Web Site");
    URLLink1.SetURL(kQuirnWebSite);
    URLLink1.SetShowToolTip(true);

    onLoad = [this] { Form_Load(); };
    onKeyPress = [this](char key) { Form_KeyPress(key); };
    tmrCookie.onTimer = [this] { NextQuote(); };
    lblQuote.onClick = [this] { Quote_Click(); };
    pctCookie.onClick = [this] { Quote_Click(); };
    cmdCookie.onClick = [this] { Unload(); };
    cmdOK.onClick = [this] { Unload(); };
    cmdSysInfo.onClick = [this] { cmdSysInfo_Click(); };
}

void frmAbout::Form_Load() {
    lblQuote.SetText(Lines(kQuotes[quote_]));
    tmrCookie.SetInterval(kQuoteInterval);
    tmrCookie.SetEnabled(true);
}

void frmAbout::Form_KeyPress(char key) {
    typed_ += FoldCase(key);
    if (typed_.size() > kLongestTyped) typed_.erase(0, typed_.size() - kLongestTyped);
    if (typed_.ends_with(kSecretWord)) ShowSecret();
}

void frmAbout::NextQuote() {
    quote_ = (quote_ + 1) % kQuotes.size();
    if (quote_ == kQuoteWithSound) PlaySoundFile(ProgramFolder() + kSoundFile);
    lblQuote.SetText(Lines(kQuotes[quote_]));
}

// Clicking steps through the quotes faster than the timer.
void frmAbout::Quote_Click() {
    NextQuote();
    tmrCookie.SetEnabled(false);
    tmrCookie.SetEnabled(true);
}

void frmAbout::ShowSecret() {
    tmrCookie.SetEnabled(false);
    for (Control* control : std::initializer_list<Control*>{&Image1, &lblVersion, &lblDescription, &lblInfo, &lblQuote})
        control->SetVisible(false);
    URLLink1.SetVisible(false);
    pctCookie.Move(kSecretCookie);
    pctCookie.onClick = nullptr;
    lblSecret.SetVisible(true);
    cmdCookie.SetVisible(true);
}

void frmAbout::cmdSysInfo_Click() {
    const std::string tool = SystemInformationTool();
    if (tool.empty() || !FileExists(tool)) ShowMessage("System Information Is Unavailable At This Time", kPlain);
    else OpenDocument(*this, tool);
}

}  // namespace quirn

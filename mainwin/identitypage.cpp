#include "mainwin/identitypage.h"

#include "mainwin/bindingtables.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "profile/splitpath.h"

namespace quirn {

namespace {

// clang-format off
//                                       left   top  width  height
constexpr Bounds kPilotNameLabel{         120,  165,  1500, kLabelHeight};
constexpr Bounds kPilotName{             1680,  120,  2520, kRowHeight};
constexpr Bounds kPasswordLabel{          120,  540,  1500, kLabelHeight};
constexpr Bounds kPassword{              1680,  495,  2520, kRowHeight};
constexpr Bounds kShowPassword{          4500,  525,  2400, kCheckHeight};
constexpr Bounds kShipTypeLabel{          120,  930,  1500, kLabelHeight};
constexpr Bounds kShipType{              1680,  870,  2520, kRowHeight};
constexpr Bounds kResolutionLabel{       4500,  930,  1080, kLabelHeight};
constexpr Bounds kResolution{            5580,  870,  2520, kRowHeight};
constexpr Bounds kZoneLabel{              120, 1350,  1500, kLabelHeight};
constexpr Bounds kZone{                  1680, 1290,  6420, kRowHeight};
constexpr Bounds kServerIP{              1680, 1665,  2700, kLabelHeight};
constexpr Bounds kPortLabel{             4500, 1665,  1050, kLabelHeight};
constexpr Bounds kPortPlace{             5580, 1665,  2520, kLabelHeight};
constexpr Bounds kZoneDescription{       1680, 1920,  6420, kLabelHeight};
constexpr Bounds kUseProxy{               120, 2310,  1980, kCheckHeight};
constexpr Grid kProxyAddress{{           2160, 2280,   570, kRowHeight}, 690, 0, 1};
constexpr Bounds kChatNameLabel{          120, 2715,  1500, kLabelHeight};
constexpr Bounds kChatPlace{             1680, 2670,  6420, kRowHeight};
constexpr Bounds kWaveFrame{              120, 3060,  7980, 1080};
// In the frame, two rows:
constexpr int kWaveStep = 390;
constexpr Grid kWaveLabel{{               150,  330,  1020, kLabelHeight}, 0, kWaveStep, 2};
constexpr Grid kWaveName{{               1200,  330,  4350, kLabelHeight}, 0, kWaveStep, 2};
constexpr Grid kWaveBrowse{{             5640,  240,  1140, 330}, 0, kWaveStep, 2};
constexpr Grid kWavePlay{{               6870,  240,   960, 330}, 0, kWaveStep, 2};
// clang-format on

using setting::Group;

consteval const char* CaptionOf(Group group, std::string_view name) {
    return setting::Find(group, name).caption;
}

constexpr const char* kWaveCaptions[] = {"Shift-F11 :", "Shift-F12 :"};

ControlArray<MaskedBox> MakeProxyBoxes(Parent page) {
    ControlArray<MaskedBox> boxes;
    for (size_t i = 0; i < 4; ++i) boxes.emplace_back(page, kProxyAddress.Cell(i), "999");
    return boxes;
}

}  // namespace

IdentityPage::IdentityPage(TabStrip& strip, Profile& profile, Edited edited)
    : TabPage(strip, setting::NameOf(setting::Page::Identity)),
      profile_(profile),
      edited_(std::move(edited)),
      lblPilotName(*this, kPilotNameLabel, CaptionOf(Group::Dialog, "PlayerName")),
      txtPilotName(*this, kPilotName),
      lblPassword(*this, kPasswordLabel, CaptionOf(Group::Dialog, "PlayerPassword")),
      txtPassword(*this, kPassword),
      Check1(*this, kShowPassword, "Show Password"),
      lblShipType(*this, kShipTypeLabel, CaptionOf(Group::Dialog, "PlayerShipType")),
      cmbShipType(*this, kShipType),
      lblResolution(*this, kResolutionLabel, CaptionOf(Group::Options, "ResolutionX")),
      cmbResolution(*this, kResolution),
      lblZone(*this, kZoneLabel, CaptionOf(Group::Dialog, "ServerArena")),
      cmbZone(*this, kZone),
      lblServerIP(*this, kServerIP, "", Alignment::Left, Label::kShowsData),
      lblPortCaption(*this, kPortLabel, CaptionOf(Group::Dialog, "ServerPort")),
      lblServerPort(*this, kPortPlace, "", Alignment::Left, Label::kShowsData),
      lblZoneDesc(*this, kZoneDescription, "Zone Description", Alignment::Left, Label::kShowsData),
      chkUseProxy(*this, kUseProxy, CaptionOf(Group::Dialog, "ProxyIP")),
      mskProxyAddress(MakeProxyBoxes(*this)),
      lblChatName(*this, kChatNameLabel, CaptionOf(Group::Messages, "ChatName")),
      txtChatName(*this, kChatPlace),
      Frame3(*this, kWaveFrame, "Wave Messages") {
    for (size_t i = 0; i < mskProxyAddress.size(); ++i) {
        mskProxyAddress[i].SetAccessibleName("Proxy address, part " + std::to_string(i + 1) + " of 4");
        mskProxyAddress[i].onChange = edited_;
        // A point goes on to the next part, as in an address that is typed in one go.
        mskProxyAddress[i].onKeyPress = [this, i](char key) {
            if (key != '.') return false;
            if (i + 1 < mskProxyAddress.size()) mskProxyAddress[i + 1].SetFocus();
            return true;
        };
        mskProxyAddress[i].onPaste = [this](const std::string& text) { return PasteProxy(text); };
    }
    for (size_t i = 0; i < 2; ++i) {
        lblWaveCaption.emplace_back(Frame3, kWaveLabel.Cell(i), kWaveCaptions[i]);
        lblWaveFileName.emplace_back(Frame3, kWaveName.Cell(i), "Wave Filename", Alignment::Left, Label::kShowsData);
        cmdWaveBrowse.emplace_back(Frame3, kWaveBrowse.Cell(i), "Browse...").onClick = [this, i] {
            cmdWaveBrowse_Click(i);
        };
        cmdWavePlay.emplace_back(Frame3, kWavePlay.Cell(i), "Play").onClick = [this, i] { cmdWavePlay_Click(i); };
    }

    txtPassword.SetMasked(true);
    cmbShipType.SetItems({std::begin(setting::kShipTypes), std::end(setting::kShipTypes)});
    cmbResolution.SetItems({std::begin(setting::kResolutions), std::end(setting::kResolutions)});
    cmbResolution.SetListIndex(0);
    EnableProxy();

    txtPilotName.onChange = edited_;
    txtPassword.onChange = edited_;
    txtChatName.onChange = edited_;
    cmbShipType.onClick = edited_;
    cmbResolution.onClick = edited_;
    Check1.onClick = [this] { Check1_Click(); };
    cmbZone.onClick = [this] { cmbZone_Click(); };
    cmbZone.onHighlight = [this](int index) {
        ShowZone(index);
        TellZone(true);
    };
    cmbZone.onOpen = [this](bool open) { TellZone(open); };
    chkUseProxy.onClick = [this] { chkUseProxy_Click(); };
    txtChatName.onLostFocus = [this] { txtChatName_LostFocus(); };
}

void IdentityPage::SetZones(std::vector<Zone> zones) {
    zones_ = std::move(zones);
    std::vector<std::string> names;
    for (const Zone& zone : zones_) names.push_back(zone.name);
    cmbZone.SetItems(std::move(names));
}

void IdentityPage::Show() {
    txtPilotName.SetText(profile_.Dialog.Value(kPlayerName));
    txtPassword.SetText(profile_.Dialog.Value(kPlayerPassword));
    cmbShipType.SetListIndex(IndexOf(profile_.Dialog.Value(kPlayerShipType)));

    const int zone = FindZoneIndex(zones_, profile_.Dialog.Value(kServerArena));
    cmbZone.SetListIndex(zone);
    ShowZone(zone);

    for (size_t i = 0; i < lblWaveFileName.size(); ++i) ShowWave(i, profile_.WaveFiles[i]);
    // Only the width counts, on purpose: the item of the list decides both.
    cmbResolution.SetListIndex(ResolutionIndex(profile_.Options.Value(kResolutionX)));

    const std::string& proxy = profile_.Dialog.Value(kProxyIP);
    const bool useProxy = proxy.find('.') != std::string::npos;
    const ProxyParts parts = SplitProxyAddress(proxy);
    for (size_t i = 0; i < parts.size(); ++i) {
        if (useProxy) mskProxyAddress[i].SetText(parts[i]);
        else mskProxyAddress[i].Clear();
    }
    chkUseProxy.SetValue(useProxy ? 1 : 0);
    EnableProxy();

    txtChatName.SetText(profile_.Messages.Value(kChatName));
}

void IdentityPage::Collect() {
    profile_.Dialog.Value(kPlayerName) = txtPilotName.Text();
    profile_.Dialog.Value(kPlayerPassword) = txtPassword.Text();
    // With nothing selected the profile holds a ship or a zone that the lists do not know; it keeps it.
    std::string& ship = profile_.Dialog.Value(kPlayerShipType);
    ship = SelectedValue(cmbShipType.ListIndex(), ship);
    if (cmbZone.ListIndex() >= 0) {
        const Zone& zone = zones_[static_cast<size_t>(cmbZone.ListIndex())];
        profile_.Dialog.Value(kServerArena) = zone.name;
        profile_.Dialog.Value(kServerName) = zone.address;
        profile_.Dialog.Value(kServerPort) = zone.port;
    }
    for (size_t i = 0; i < lblWaveFileName.size(); ++i) profile_.WaveFiles[i] = lblWaveFileName[i].Text();
    SplitResolution(cmbResolution.SelectedText(), profile_.Options.Value(kResolutionX),
                    profile_.Options.Value(kResolutionY));

    std::string& proxy = profile_.Dialog.Value(kProxyIP);
    if (chkUseProxy.Value() == 0) {
        proxy.clear();
    } else {
        ProxyParts parts;
        for (size_t i = 0; i < parts.size(); ++i) parts[i] = mskProxyAddress[i].Text();
        proxy = JoinProxyAddress(parts, proxy);
    }
    // Ctrl+S and the menus leave the keyboard where it is: a name that is still being typed is completed here.
    if (Owner().ActiveControl() == &txtChatName) txtChatName_LostFocus();
    profile_.Messages.Value(kChatName) = txtChatName.Text();
}

void IdentityPage::cmbZone_Click() {
    ShowZone(cmbZone.ListIndex());
    edited_();
}

// Also while the player moves through the open list. Without a zone in the list the profile's own is shown.
void IdentityPage::ShowZone(int index) {
    const Section& dialog = profile_.Dialog;
    const bool listed = index >= 0 && static_cast<size_t>(index) < zones_.size();
    const Zone zone = listed ? zones_[static_cast<size_t>(index)]
                             : Zone{"", dialog.Value(kServerName), dialog.Value(kServerPort), ""};
    lblServerIP.SetText(zone.address);
    lblServerPort.SetText(zone.port);
    lblZoneDesc.SetText(zone.description);
    lblZoneDesc.SetToolTip(zone.description);
}

void IdentityPage::TellZone(bool listOpen) {
    const std::string& description = lblZoneDesc.Text();
    if (onZoneInList)
        onZoneInList(listOpen ? lblServerIP.Text() + "  Port " + lblServerPort.Text() +
                                    (description.empty() ? "" : "  " + description)
                              : "");
}

void IdentityPage::ShowWave(size_t slot, const std::string& path) {
    lblWaveFileName[slot].SetText(path);
    lblWaveFileName[slot].SetToolTip(path);
    cmdWavePlay[slot].SetEnabled(!path.starts_with('<') && !path.empty());
}

void IdentityPage::chkUseProxy_Click() {
    EnableProxy();
    edited_();
}

void IdentityPage::EnableProxy() {
    for (MaskedBox& box : mskProxyAddress) box.SetEnabled(chkUseProxy.Value() == 1);
}

// A whole address, into whichever box it is pasted.
bool IdentityPage::PasteProxy(const std::string& text) {
    const std::optional<ProxyParts> parts = PastedProxyAddress(text);
    if (!parts) return false;
    for (size_t i = 0; i < parts->size(); ++i) mskProxyAddress[i].SetText((*parts)[i]);
    mskProxyAddress.back().SetFocus();
    edited_();
    return true;
}

void IdentityPage::txtChatName_LostFocus() {
    const std::string normalized = NormalizeChatName(txtChatName.Text());
    if (normalized == txtChatName.Text()) return;
    txtChatName.SetText(normalized);
    txtChatName.PutCaretAtEnd();  // the player may be typing on
    edited_();
}

void IdentityPage::Check1_Click() {
    txtPassword.SetMasked(Check1.Value() == 0);
}

void IdentityPage::cmdWaveBrowse_Click(size_t index) {
    FileDialog dialog;
    dialog.title = "Open";
    dialog.filter = "WAV Files (*.wav)|*.wav";
    dialog.flags = kHideReadOnly | kFileMustExist;
    const std::string current = lblWaveFileName[index].Text();
    if (!current.starts_with('<')) dialog.folder = SplitPath(current).Folder();
    const std::optional<std::string> chosen = AskOpenFile(dialog);
    if (!chosen) return;
    ShowWave(index, *chosen);
    edited_();
}

void IdentityPage::cmdWavePlay_Click(size_t index) {
    PlaySoundFile(lblWaveFileName[index].Text());
}

}  // namespace quirn

#pragma once

#include <array>
#include <functional>

#include "game/zonelist.h"
#include "mainwin/page.h"
#include "profile/profile.h"

namespace quirn {

// The page "Identity": who the player is, where he starts, how he gets there.
class IdentityPage : public TabPage {
public:
    IdentityPage(TabStrip& strip, Profile& profile, Edited edited);

    // The list of the zone box. Selects nothing.
    void SetZones(std::vector<Zone> zones);

    // Profile to controls and back.
    void Show();
    void Collect();

    // While the list of zones is open it covers what the page says of a zone: the address, port and description of the
    // one that the player is at, and an empty text when the list has been closed.
    std::function<void(const std::string& zone)> onZoneInList;

private:
    void cmbZone_Click();
    void ShowZone(int index);
    void TellZone(bool listOpen);
    void ShowWave(size_t slot, const std::string& path);
    void chkUseProxy_Click();
    void EnableProxy();
    bool PasteProxy(const std::string& text);
    void txtChatName_LostFocus();
    void Check1_Click();
    void cmdWaveBrowse_Click(size_t index);
    void cmdWavePlay_Click(size_t index);

    Profile& profile_;
    Edited edited_;
    std::vector<Zone> zones_;

    Label lblPilotName;
    TextBox txtPilotName;
    Label lblPassword;
    TextBox txtPassword;
    CheckBox Check1;
    Label lblShipType;
    ComboBox cmbShipType;
    Label lblResolution;
    ComboBox cmbResolution;
    Label lblZone;
    ComboBox cmbZone;
    Label lblServerIP;
    Label lblPortCaption;
    Label lblServerPort;
    Label lblZoneDesc;
    CheckBox chkUseProxy;
    ControlArray<MaskedBox> mskProxyAddress;
    Label lblChatName;
    TextBox txtChatName;
    Frame Frame3;
    ControlArray<Label> lblWaveCaption;
    ControlArray<Label> lblWaveFileName;
    ControlArray<Button> cmdWaveBrowse;
    ControlArray<Button> cmdWavePlay;
};

}  // namespace quirn

"""The game's 122 settings, written down a second time on purpose: what the started program leaves in the registry
is compared with this list, not with the program's own."""

SZ, DWORD = "REG_SZ", "REG_DWORD"

DIALOG = "PlayerName PlayerPassword ServerName ServerPort ServerArena ProxyIP PlayerShipType".split()
MESSAGES = """ShiftF1 ShiftF2 ShiftF3 ShiftF4 ShiftF5 ShiftF6 ShiftF7 ShiftF8 RShiftF1 RShiftF2 RShiftF3 RShiftF4
    RShiftF5 RShiftF6 RShiftF7 RShiftF8 ChatName""".split()
OPTIONS = """PlayerReceiveWaveMessages ShowStars OpaqueMessages GammaCorrect BlockObscene ShadedBoxes Emulator
    StripMessages ResolutionX ResolutionY Joystick TickerOn MessageHistorySize TargetBounty SoundState RadarState
    FontState EnergyBarState StatusState WeaponsState ShowBackground ShowShipExplosions Alarm Clock MultiFireOn
    IgnoreMacros ShipRolls MessageEntryBox SkipMainMenu ShowLatency VisibleThrust BombTrails BulletTrails
    ShrapnelTrails Translucent 3dSound MusicVolume MessageNameLen Distinguish""".split()
ADVANCED = """SkipSplash GammaPercent TripleBuffer AvoidPageFlipping SystemFont SystemTiles SystemBullets
    SystemShrapnel SystemTrails SystemBombs SystemIcons SystemExhaust SystemShips SystemExplode0 SystemExplode1
    SystemExplode2 SystemRadarEdge SystemMines SystemGoal SystemRocket SystemSparks SystemTurret SystemBurst
    SystemRepel SystemWarp SystemBombFlash SystemHealthBar SystemPrizes SystemFlags SystemSoccerBall SystemWalls
    SystemDamage SystemShields SystemSSShield SystemSuper SystemDropFlag SystemKing SystemKingExpire SystemWarpPoint
    SystemEnergyFont SystemLEDFont SystemStatusDisplay SystemSpectate SystemBigTiles SystemBackgrounds SystemJunk
    SystemRolls SystemAdvertisements SystemPopups SystemStatus SystemWeapons SystemRadar SystemMessages SystemMap
    SystemBanners SystemStatBox""".split()
HIDDEN = "Force60 ShowFrameRate FlickSystemMemory".split()

GROUPS = {"Dialog": DIALOG, "Messages": MESSAGES, "Options": OPTIONS, "Advanced": ADVANCED, "HiddenOptions": HIDDEN}


def type_of(group, name):
    if group == "Messages" or (group == "Dialog" and name != "PlayerShipType"):
        return SZ
    return DWORD


assert [len(names) for names in GROUPS.values()] == [7, 17, 39, 56, 3]

"""What a decoder has read from an access point's frame, and the readings that the program is to make of it."""

from dataclasses import dataclass, field

DSSS_RATES = {1.0, 2.0, 5.5, 11.0}
OFDM_RATES = {6.0, 9.0, 12.0, 18.0, 24.0, 36.0, 48.0, 54.0}
WIDTHS = {0: 20, 1: 40, 2: 80, 3: 160}  # the code in a 6 GHz or EHT operation field: MHz


@dataclass
class Heard:
    """The facts, by whichever decoder; the properties are what the program is expected to say of them."""

    bssid: str
    frequency: int = 0  # MHz
    beacon_interval: int = 0
    privacy: bool = False
    ibss: bool = False
    ssid: bytes = b""
    country: str | None = None
    rates: set[float] = field(default_factory=set)  # Mbit/s
    rsn: set[str] | None = None  # families of key management; None: no such element
    wpa: set[str] | None = None
    ht: bool = False
    vht: bool = False
    he: bool = False
    eht: bool = False  # which the program has no name for
    ht_wide: bool = False  # a second half of 20 MHz, which stations may use
    vht_operation: tuple[int, int] = (0, 0)  # width code, centre of segment 1
    ghz6_width: int | None = None  # codes
    eht_width: int | None = None

    @property
    def is_named(self) -> bool:
        return bool(self.ssid.strip(b"\0")) and self.ssid != b"Unknown"

    @property
    def ssid_text(self) -> str:
        return self.ssid.decode("utf-8", "replace")

    @property
    def channel(self) -> int:
        if self.frequency == 2484:
            return 14
        zero = 2407 if self.frequency < 3000 else 5000 if self.frequency < 5950 else 5950
        return (self.frequency - zero) // 5

    @property
    def band(self) -> str:
        """By the channel's number alone, as the program has it: 6 GHz has no name of its own."""
        if 1 <= self.channel <= 14:
            return "2.4 GHz"
        return "5 GHz" if 36 <= self.channel <= 177 else "Unknown"

    @property
    def width(self) -> int:
        """MHz, by the newest element that tells; 0 for what the program has no name for."""
        if self.eht_width is not None:
            return WIDTHS.get(self.eht_width, 0)
        if self.ghz6_width is not None:
            return WIDTHS[self.ghz6_width]
        code, segment1 = self.vht_operation
        if code == 1:
            return 80 if segment1 == 0 else 160  # a second segment: 160 MHz, or two separate halves of it
        if code in (2, 3):
            return 160
        return 40 if self.ht_wide else 20

    @property
    def security(self) -> str:
        rsn, wpa = self.rsn or set(), self.wpa or set()
        names = {
            "WEP": self.privacy and self.rsn is None and self.wpa is None,
            "WPA": "PSK" in wpa,
            "WPA Mixed": "PSK" in wpa and "PSK" in rsn,
            "WPA2": "PSK" in rsn,
            "Enterprise": "802.1X" in rsn | wpa,
            "Personal": bool({"PSK", "SAE"} & (rsn | wpa)),
            "WPA3": "SAE" in rsn,
        }
        return ", ".join(name for name, holds in names.items() if holds) or "None"

    @property
    def phy_modes(self) -> list[str]:
        low_band, middle_band = self.frequency < 3000, 3000 < self.frequency < 5950
        modes = {
            "a": middle_band and bool(self.rates & OFDM_RATES),
            "b": low_band and bool(self.rates & DSSS_RATES),
            "g": low_band and bool(self.rates & OFDM_RATES),
            "n": self.ht,
            "ac": self.vht,
            "ax": self.he,
        }
        return [f"802.11{mode}" for mode, holds in modes.items() if holds]

"""Settings of hostapd that the plans share."""

PASSWORD = "correct horse"
PSK = f"wpa_passphrase={PASSWORD}"
EAP = "ieee8021x=1;eap_server=1;eap_user_file=/out/plan/eap.users"
WPA = "wpa=1;wpa_pairwise=TKIP;wpa_key_mgmt="
MIXED = "wpa=3;wpa_pairwise=TKIP CCMP;rsn_pairwise=CCMP;wpa_key_mgmt="
WPA2 = "wpa=2;rsn_pairwise=CCMP;wpa_key_mgmt="
MAY_PROTECT = "ieee80211w=1;" + WPA2  # management frames
PROTECTED = "ieee80211w=2;" + WPA2
ROAMING = "mobility_domain=a1b2;nas_identifier=ap;ft_psk_generate_local=1"

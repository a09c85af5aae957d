#pragma once

/// A widget of the form with the text that it has before anything is shown.
struct FormRow
{
    const char* name;
    const char* className;
    const char* text; ///< null for widgets without a text of their own
};

constexpr FormRow formRows[] = {
    {"groupInfo", "QGroupBox", "Device Information"},
    {"label", "QLabel", "Device Name: "},
    {"labelDeviceName", "QLabel", "-"},
    {"label_3", "QLabel", "Firmware Version: "},
    {"labelFirmwareVersion", "QLabel", "-"},
    {"label_20", "QLabel", "Hardware Revision:"},
    {"labelHardwareRevision", "QLabel", "-"},
    {"label_5", "QLabel", "Internal ID: "},
    {"labelSerial", "QLabel", "-"},
    {"label_22", "QLabel", "Type:"},
    {"labelType", "QLabel", "-"},
    {"labelLastResetStatic", "QLabel", "Date/time of last reset:"},
    {"labelLastReset", "QLabel", "-"},
    {"labelLowBattery", "QLabel", ""},
    {"label_8", "QLabel", "Date/time on device:"},
    {"labelDateTime", "QLabel", "-"},
    {"buttonToolTimeZone", "QToolButton", "..."},
    {"labelTimeZoneStatic", "QLabel", "Time Zone on device:"},
    {"labelTimeZone", "QLabel", "-"},

    {"groupSetup", "QGroupBox", "Device Setup"},
    {"labelSampling", "QLabel", "Sampling time"},
    {"comboSampling", "QComboBox", nullptr},
    {"label_7", "QLabel", "Custom time (minutes):"},
    {"spinSampling", "QSpinBox", nullptr},
    {"labelDelay", "QLabel", "Start delay"},
    {"comboDelay", "QComboBox", nullptr},
    {"label_6", "QLabel", "Custom delay (minutes)"},
    {"spinDelay", "QSpinBox", nullptr},
    {"labelTemp", "QLabel", "Operating temperature range"},
    {"comboTemp", "QComboBox", nullptr},
    {"label_2", "QLabel", "Minimum (°C):"},
    {"spindTempMin", "QDoubleSpinBox", nullptr},
    {"label_4", "QLabel", "Maximum (°C):"},
    {"spindTempMax", "QDoubleSpinBox", nullptr},
    {"checkLock", "QCheckBox", "Disable changes via button"},
    {"buttonAdvanced", "QPushButton", "Advanced Options"},

    {"groupInfo_2", "QGroupBox", "Report Information (optional)"},
    {"label_13", "QLabel", "Sender:"},
    {"lineSender", "QLineEdit", ""},
    {"labelCountSender", "QLabel", "(0/60)"},
    {"label_14", "QLabel", "Recipient:"},
    {"lineRecipient", "QLineEdit", ""},
    {"labelCountRecipient", "QLabel", "(0/60)"},
    {"label_17", "QLabel", "Information:"},
    {"lineInfo", "QLineEdit", ""},
    {"labelCountInfo", "QLabel", "(0/60)"},

    {"groupInfo_3", "QGroupBox", "Tracking Information (optional)"},
    {"label_28", "QLabel", "Barcode on logger:"},
    {"lineBarcode", "QLineEdit", ""},
    {"labelCountBarcode", "QLabel", "(0/10)"},
    {"label_29", "QLabel", "Shipment type:"},
    {"comboType", "QComboBox", nullptr},

    {"buttonConnect", "QPushButton", "Connect"},
    {"buttonRead", "QPushButton", "Read"},
    {"buttonWrite", "QPushButton", "Write"},
    {"buttonPreset", "QPushButton", "Defaut preset    "},
    {"buttonStart", "QPushButton", "Start  "},
};

/// The controls that show one of the logger's values each, by their kind.
constexpr const char* lineNames[] = {"lineSender", "lineRecipient", "lineInfo", "lineBarcode"};
constexpr const char* comboNames[] = {"comboTemp", "comboSampling", "comboDelay", "comboType"};

#pragma once

/// What the program's files are called where more than one class uses them.
namespace Configuration {

/// The settings of the tool, in the current folder and in the format of preset files.
constexpr auto file = "blconf";
/// The key of the language there.
constexpr auto languageKey = "language";
/// What file dialogs offer as presets.
constexpr auto presetFilter = "Brumalogger preset files (*.bpr)";

} // namespace Configuration

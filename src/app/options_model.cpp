#include "app/options_model.h"

#include "app/pc_list_file.h"
#include "app/settings_file.h"

namespace app {

OptionsModel::OptionsModel(Program& program, platform::IFileSystem& files, platform::IProfile& profile,
                           platform::IDialogs& dialogs, std::vector<std::string> interfaceTexts)
    : m_program(program), m_files(files), m_profile(profile), m_dialogs(dialogs),
      m_interfaceChoices(std::move(interfaceTexts)) {}

const std::vector<std::string>& OptionsModel::IntervalChoices() {
    static const std::vector<std::string> choices{"1", "2", "3", "5", "10", "15", "20", "30", "60", "120", "300"};
    return choices;
}

void OptionsModel::Fill(PcListBoxes& boxes, const PcList& list) {
    boxes.enabled = IsEnforced(list);
    for (int i = 0; i < 20; ++i) boxes.entries[static_cast<std::size_t>(i)] = list[i + 1];
}

void OptionsModel::Load() {
    Settings& s = m_program.settings;
    SettingsFile(m_program.folder, m_files, m_profile, m_dialogs).Read(s);
    PcList allowList, denyList;
    LoadPcList(m_files, m_program.folder + kAllowListFile, allowList);
    LoadPcList(m_files, m_program.folder + kDenyListFile, denyList);
    Fill(allow, allowList);
    Fill(deny, denyList);

    interfaceText = s.nc;
    interval = s.time;
    logflag = s.logflag == 1;
    app = s.app == 1;
    packet = s.packet == 1;
    beep = s.beep == 1;
    window = s.window == 1;
    start = s.start == 1;
    open = s.open == "1";
    swatches[static_cast<int>(Swatch::Text)] = static_cast<base::Colour>(s.Fontcolor());
    swatches[static_cast<int>(Swatch::Background)] = static_cast<base::Colour>(s.Backcolor());
}

void OptionsModel::ChooseSwatchColour(Swatch swatch) {
    if (const auto colour = m_dialogs.ChooseColour()) swatches[static_cast<int>(swatch)] = *colour;
}

void OptionsModel::Save(PcListBoxes& boxes, PcList& list, const char* fileName) {
    list[0] = boxes.enabled ? kListOn : kListOff;
    for (int i = 0; i < 20; ++i) list[i + 1] = boxes.entries[static_cast<std::size_t>(i)];
    SavePcList(m_files, m_program.folder + fileName, boxes.enabled, boxes.entries);
}

void OptionsModel::Ok() {
    Save(allow, m_program.allowList, kAllowListFile);
    Save(deny, m_program.denyList, kDenyListFile);

    Settings& s = m_program.settings;
    const auto flag = [](bool ticked) -> std::uint8_t { return ticked ? 1 : 0; };
    s.open = open ? "1" : "0";
    s.start = flag(start);
    s.packet = flag(packet);
    s.beep = flag(beep);
    s.logflag = flag(logflag);
    s.window = flag(window);
    s.app = flag(app);
    s.nc = interfaceText;
    s.time = interval;
    s.Backcolor() = static_cast<std::int32_t>(swatches[static_cast<int>(Swatch::Background)]);
    s.Fontcolor() = static_cast<std::int32_t>(swatches[static_cast<int>(Swatch::Text)]);
    SettingsFile(m_program.folder, m_files, m_profile, m_dialogs).Write(s);
}

}  // namespace app

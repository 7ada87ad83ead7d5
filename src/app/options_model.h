#pragma once
// frmOPTION without a screen: the state of every control, filled from setting.ini and the
// two PC list files when the dialog loads, and written back by OK.
#include <array>
#include <string>
#include <vector>

#include "app/program.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/profile.h"

namespace app {

struct PcListBoxes {
    bool enabled = false;
    std::array<std::string, 20> entries{};  // the twenty text boxes in order
};

// The swatches of the label array lblCOLOR.
enum class Swatch { Text = 0, Background = 1 };

class OptionsModel {
public:
    OptionsModel(Program& program, platform::IFileSystem& files, platform::IProfile& profile,
                 platform::IDialogs& dialogs, std::vector<std::string> interfaceTexts);

    // The intervals offered in the drop-down, in seconds.
    static const std::vector<std::string>& IntervalChoices();
    const std::vector<std::string>& InterfaceChoices() const { return m_interfaceChoices; }

    // Form load: reads the settings again and both list files, and fills the controls.
    void Load();
    // lblCOLOR_Click: the colour dialog; a confirmed colour becomes the swatch's.
    void ChooseSwatchColour(Swatch swatch);
    // Command1_Click: writes both lists and the settings. The caller closes the dialog and
    // applies the colours to the lists.
    void Ok();

    // Control state.
    std::string interfaceText;
    std::string interval;
    bool logflag = false, app = false, packet = false, beep = false, window = false, start = false, open = false;
    std::array<base::Colour, 2> swatches{};  // [Text], [Background]
    PcListBoxes allow, deny;

private:
    static void Fill(PcListBoxes& boxes, const PcList& list);
    void Save(PcListBoxes& boxes, PcList& list, const char* fileName);

    Program& m_program;
    platform::IFileSystem& m_files;
    platform::IProfile& m_profile;
    platform::IDialogs& m_dialogs;
    std::vector<std::string> m_interfaceChoices;
};

}  // namespace app

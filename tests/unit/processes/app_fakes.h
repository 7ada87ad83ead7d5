#pragma once
// Small stand-ins for the allowed-applications list: the per-user settings, the input box and
// the alert form.
#include <map>
#include <string>
#include <vector>

#include "platform/input_box.h"
#include "platform/program_settings.h"
#include "processes/app_dictionary.h"

namespace processes {

struct FakeProgramSettings : platform::IProgramSettings {
    std::optional<std::string> GetSetting(const std::string& application, const std::string& section,
                                          const std::string& key) override {
        const auto found = values.find(application + "\\" + section + "\\" + key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    std::map<std::string, std::string> values;
};

struct FakeInputBox : platform::IInputBox {
    std::string Ask(const std::string& prompt, const std::string& title) override {
        asked.push_back(prompt + "|" + title);
        return answer;
    }
    std::string answer;
    std::vector<std::string> asked;
};

struct RecordingAlert : IAppAlert {
    void Appview(const std::string& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

}  // namespace processes

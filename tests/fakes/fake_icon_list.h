#pragma once
// An image list that records what was put into it: the path of each file icon, or "?" for the
// stand-by picture. Paths in noIcon get no icon list from the shell.
#include <set>
#include <string>
#include <vector>

#include "platform/file_icons.h"

namespace fakes {

class FakeIconList : public platform::IIconList {
public:
    void Clear() override { images.clear(); }
    bool AddFileIcon(const std::string& path) override {
        if (noIcon.count(path)) return false;
        images.push_back(path);
        return true;
    }
    void AddStandByIcon() override { images.push_back("?"); }

    std::vector<std::string> images;
    std::set<std::string> noIcon;
};

}  // namespace fakes

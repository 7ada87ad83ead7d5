#include "app/manifest.h"

namespace app {

std::string ManifestText(const std::string& executableFileName, const std::string& comments,
                         const std::string& architecture) {
    const std::string quote = "\"";
    const std::string lines[] = {
        R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)",
        R"(<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">)",
        "<assemblyIdentity",
        "  name=" + quote + executableFileName + quote,
        "  processorArchitecture=" + quote + architecture + quote,
        R"(  version="1.0.0.0")",
        R"(  type="win32"/>)",
        "<description>" + comments + "</description>",
        "<dependency>",
        "  <dependentAssembly>",
        "    <assemblyIdentity",
        R"(      type="win32")",
        R"(      name="Microsoft.Windows.Common-Controls")",
        R"(      version="6.0.0.0")",
        "      processorArchitecture=" + quote + architecture + quote,
        R"(      publicKeyToken="6595b64144ccf1df")",
        R"(      language="*")",
        "    />",
        "  </dependentAssembly>",
        "</dependency>",
        "</assembly>",
    };
    std::string text;
    for (const auto& line : lines) {
        if (!text.empty()) text += "\r\n";
        text += line;
    }
    return text;
}

}  // namespace app

// The file of the settings, which other programs and other versions of this one may have written.
#include "fuzz/fuzzInput.h"
#include "storage/settingsText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const SettingsMap settings = parseSettings(FuzzInput(data, size).rest());
    HAS_TO_HOLD(parseSettings(settingsText(settings)) == settings);
    QByteArray lines = settingsText(settings);
    for (auto setting = settings.begin(); setting != settings.end(); ++setting)
        lines += settingLine(setting.key(), std::nullopt);
    HAS_TO_HOLD(parseSettings(lines).isEmpty());
    return 0;
}

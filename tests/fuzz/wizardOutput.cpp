// What a wizard, a program of somebody else's, has written when it ends.
#include "desktop/wizardOutput.h"
#include "fuzz/fuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const QByteArray bytes = FuzzInput(data, size).rest();
    const std::optional<WizardOutput> output = readWizardOutput(bytes);
    if (output) {
        HAS_TO_HOLD(!output->data.contains(QChar(0)));
        HAS_TO_HOLD(output->data.count(u'\r') == output->data.count(u'\n'));
    }
    return 0;
}

// The file of a site project.
#include "common/encodings.h"
#include "fuzz/fuzzInput.h"
#include "project/projectFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const ProjectReading reading = readProjectFile(decodeOwnFile(FuzzInput(data, size).rest()));
    for (const ProjectFileLine &line : reading.files)
        HAS_TO_HOLD(!line.path.isEmpty() && !line.path.contains(QStringLiteral("\r\n")));
    ProjectContents contents{.siteName = reading.siteName.value_or(QString()),
                             .siteAuthor = reading.siteAuthor.value_or(QString())};
    for (const ProjectFileLine &line : reading.files)
        (line.isEditorFile ? contents.editorFiles : contents.otherFiles).append(line.path);
    (void)readProjectFile(decodeOwnFile(encodeOwnFile(projectFileText(contents))));
    return 0;
}

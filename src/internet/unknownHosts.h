#pragma once

#include <QString>

struct ProgramContext;
struct UnknownHost;

/// What came of the question whether a server is to be trusted.
struct TrustAnswer {
    bool trusted = false;
    QString failure = {}; ///< why it is not, though the user agreed
};

/// Shows the key of a server that is not known, and asks whether to trust it from now on.
TrustAnswer askToTrust(ProgramContext &context, const UnknownHost &host);

#pragma once

#include "services/services.h"

#include <optional>

/// What a test puts in the place of services of the desktop; the desktop's own where nothing is named.
struct ServicesInstead {
    MessageBoxes *messageBoxes = nullptr;
    CommonDialogs *commonDialogs = nullptr;
    TimerSource *timers = nullptr;
    ModalLoop *modalLoop = nullptr;
    PageViews *pageViews = nullptr;
    WizardServer *wizards = nullptr;
    std::optional<QString> appPath = std::nullopt;
    std::optional<QString> statePath = std::nullopt;
};

/// The services of the desktop but for those. Both outlive the result.
inline Services servicesOver(const Services &real, const ServicesInstead &instead)
{
    return {
        .messageBoxes = instead.messageBoxes ? *instead.messageBoxes : real.messageBoxes,
        .commonDialogs = instead.commonDialogs ? *instead.commonDialogs : real.commonDialogs,
        .settings = real.settings,
        .files = real.files,
        .launcher = real.launcher,
        .clipboard = real.clipboard,
        .clock = real.clock,
        .random = real.random,
        .help = real.help,
        .timers = instead.timers ? *instead.timers : real.timers,
        .fileClasses = real.fileClasses,
        .modalLoop = instead.modalLoop ? *instead.modalLoop : real.modalLoop,
        .yielder = real.yielder,
        .pageViews = instead.pageViews ? *instead.pageViews : real.pageViews,
        .worker = real.worker,
        .transfers = real.transfers,
        .wizards = instead.wizards ? *instead.wizards : real.wizards,
        .printing = real.printing,
        .systemFacts = real.systemFacts,
        .appPath = instead.appPath.value_or(real.appPath),
        .installedPath = instead.appPath ? QString() : real.installedPath,
        .statePath = instead.statePath.value_or(real.statePath),
    };
}

#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"
#include "ui/page.hpp"
#include "ui/uninstaller_model.hpp"

#include <string>
#include <vector>

/// The parts of the page, each a pure function of what the model publishes.
namespace kelmar {

/// What was found, one row for each kind of item. `inventory` must not be empty.
FoundSection foundSection(const Inventory& inventory, const KelmarPaths& paths);

/// The choice of data to delete. `published` must have data folders.
DataSection dataSection(const UninstallerModel::Published& published, const KelmarPaths& paths,
                        bool showFolders);

/// What a finished run removed and what it kept. Lists the data roots as they are now; this is the
/// only function here that reads the file system.
std::vector<SummaryRow> summary(const UninstallerModel::Published& published,
                                const KelmarPaths& paths);

/// The footer in the model's current phase.
Footer footer(const UninstallerModel::Published& published);

/// The question before data is deleted.
Confirmation confirmation(const UninstallerModel::Published& published);

/// The icon for a stage's state.
StageIcon stageIcon(UninstallerModel::StageRow::State state);

} // namespace kelmar

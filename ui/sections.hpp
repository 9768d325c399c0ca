#pragma once

#include "discovery/inventory.hpp"
#include "discovery/kelmar_paths.hpp"
#include "ui/page.hpp"
#include "ui/uninstaller_model.hpp"

#include <string>
#include <vector>

/// The parts of the page, each a pure function of what the model publishes.
namespace kelmar {

/// What was found, a row for each kind of thing. `inventory` is not empty.
FoundSection foundSection(const Inventory& inventory, const KelmarPaths& paths);

/// The choice of data to delete. `published` has data folders.
DataSection dataSection(const UninstallerModel::Published& published, const KelmarPaths& paths,
                        bool showFolders);

/// What a finished run did and what it kept. Lists the data roots as they are now, which is all
/// that any of these functions reads.
std::vector<SummaryRow> summary(const UninstallerModel::Published& published,
                                const KelmarPaths& paths);

/// What is below the content in the phase that the model is in.
Footer footer(const UninstallerModel::Published& published);

/// The question before data is deleted.
Confirmation confirmation(const UninstallerModel::Published& published);

/// A stage's icon by its state.
StageIcon stageIcon(UninstallerModel::StageRow::State state);

} // namespace kelmar

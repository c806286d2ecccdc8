#include "IPathManager.h"

#include <utility>

namespace CUI {

std::unique_ptr<IPathManager> IPathManager::thePathManager;

IPathManager::IPathManager() = default;
IPathManager::~IPathManager() = default;

IPathManager *IPathManager::get()
{
    return thePathManager.get();
}

void IPathManager::set(std::unique_ptr<IPathManager> &manager)
{
    thePathManager.reset();
    thePathManager = std::move(manager);
}

QString IPathManager::getInstallDirectory() const
{
    return {};
}

QString IPathManager::getUserDirectory() const
{
    return {};
}

QString IPathManager::getDefaultMenuDirectory() const
{
    return {};
}

QString IPathManager::getUserMenuDirectory() const
{
    return {};
}

} // namespace CUI

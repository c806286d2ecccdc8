#include "TestHost.h"

#include <QFile>

TestHost::TestHost()
{
    auto registry = std::make_unique<TestRegistry>();
    m_registry = registry.get();
    std::unique_ptr<CUI::ICuiActionManager> installedRegistry = std::move(registry);
    CUI::ICuiActionManager::set(installedRegistry);

    auto paths = std::make_unique<TestPaths>();
    m_paths = paths.get();
    std::unique_ptr<CUI::IPathManager> installedPaths = std::move(paths);
    CUI::IPathManager::set(installedPaths);
}

TestHost::~TestHost()
{
    std::unique_ptr<CUI::ICuiActionManager> noRegistry;
    CUI::ICuiActionManager::set(noRegistry);
    std::unique_ptr<CUI::IPathManager> noPaths;
    CUI::IPathManager::set(noPaths);
}

QString TestHost::write(const QString &fileName, const QByteArray &contents) const
{
    const QString filePath = path(fileName);
    QFile file(filePath);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write a test file");
    return filePath;
}

QByteArray TestHost::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

#pragma once

#include "EditorHands.h"

#include <QString>
#include <QTextStream>

#include <memory>
#include <optional>

namespace Studio {

class DialogAnswers;
class MainWindow;
class StudioSession;

/// Uses the application as a person would, step by step, and checks after each that it has done
/// what it should. Leaves a picture of each step.
class Tour
{
public:
    struct Folders {
        QString host;
        QString user;
        QString pictures;
        QString legacyFile;
    };

    Tour(const Folders &folders, QTextStream &out);
    ~Tour();

    /// True when every step did what it should.
    bool run();

private:
    void start();
    void useKeys();
    void holdKey();
    void openDialog();
    void search();
    void meetConflict();
    void removeAndUndo();
    void assign();
    void saveAs();
    void switchSets();
    void closeUnsaved();
    void importLegacy();
    void startAgain();

    MainWindow &window() const;
    QWidget *focused(QWidget *fallback) const;
    /// The portable hotkey's owner in a context, as text.
    QString owner(const QString &hotkey, unsigned long context) const;
    QString menuText(const QString &action) const;
    QString currentSet() const;
    QString userFile(const QString &name) const;
    void step(const QString &text, QWidget *shown = nullptr);
    void check(bool isRight, const QString &expectation);
    void watch(const DialogAnswers &answers);

    Folders m_folders;
    QTextStream &m_out;
    std::unique_ptr<StudioSession> m_session;
    CustomizeDialog *m_dialog = nullptr;
    std::optional<EditorHands> m_hands;
    int m_steps = 0;
    int m_checks = 0;
    int m_faults = 0;
};

} // namespace Studio

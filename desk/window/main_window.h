#pragma once

#include "desk/window/canvas_prompter.h"
#include "desk/window/command_table.h"
#include "desk/window/session.h"
#include "desk/window/theme.h"
#include "desk/window/translation.h"

#include <QMainWindow>
#include <QMap>
#include <QTranslator>
#include <memory>

class QAction;
class QSettings;
class QSplitter;
class QStackedWidget;
class QToolBar;

namespace window {

class BlocksPanel;
class BusyBar;
class CommandLine;
class EdgeTab;
class Files;
class HelpWindow;
class JobView;
class LayersPanel;
class NoticeBar;
class PropertiesPanel;
class JobPage;
class RunWatch;
class StatusLine;
class Veil;
enum class LayerAct;

/// The window about the drawing: one window, one drawing.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    /// `face` makes the face that shows the dialogs, for a window that they belong to. `settings` keeps the
    /// window's state; it outlives the window. Raises what hinders the desk.
    using MakeFace = std::function<std::unique_ptr<forms::Screen>(QWidget& owner)>;
    MainWindow(const shell::DeskOptions& options, const MakeFace& face, QSettings& settings, Scheme desktop);
    ~MainWindow() override;

    /// Opens a drawing as the menu does; a failure is told in the window.
    void open(const QString& path);

    // For the parts and for tests.
    Canvas& canvas() { return *canvas_; }
    CommandLine& commandLine() { return *commandLine_; }
    Session& session() { return *session_; }
    CanvasPrompter& prompter() { return *prompter_; }
    DialogWatch& watch() { return *watch_; }
    StatusLine& status() { return *status_; }
    PropertiesPanel& propertiesPanel() { return *properties_; }
    NoticeBar& notice() { return *notice_; }
    /// The action of the command table with this id.
    QAction* action(const QString& id) const { return actions_.value(id); }
    void enterLine(const QString& line);
    /// Why a row of a dialog's table, from 1, failed; empty for one that didn't.
    QString faultOf(const forms::Control& table, int row) const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // main_window_build.cpp
    void build();
    void buildMenus();
    void buildTools();
    void buildParts();
    void connectParts();
    void connectSession();
    QWidget* buildLeftDock();
    QWidget* buildRightDock();

    // main_window_state.cpp: what is seen, and what is kept.
    void applyScheme();
    void applyLanguage();
    void retranslate();
    void restoreState();
    void keepState();
    void layOutDocks();
    void setAlone(bool alone);
    void focusNextPart();
    QString toolTipOf(const Command& command) const;

    // main_window_actions.cpp
    void trigger(const QString& id);
    void runCommand(const QString& line);
    void selectCommand(const QString& id);
    void viewCommand(const QString& id);
    void eraseSelection();
    void changeLayer(LayerAct act, const QString& layer);
    void blockJob(const QString& command, const QString& block);
    void escape();

    // main_window.cpp
    void updateTitle();
    void updateActions();
    void updateBlocking();
    void updatePrompt();
    void drawingChanged();
    void drawingOpened();
    void selectionChanged();
    void commandEnded(shell::Desk::Outcome outcome);
    void resultLink(int index);
    void chooseSpace(int tab);
    void showHelp(const std::filesystem::path& page);
    bool isBlocked() const;
    const drawing::Drawing* drawing() const;

    shell::DeskOptions options_;
    QSettings& settings_;
    Scheme desktop_;
    Scheme scheme_ = Scheme::Dark;
    Scheme canvasScheme_ = Scheme::Dark;
    Translation translation_;
    QTranslator toolkitTranslation_;  ///< of file dialogs, where Debian's package of it is installed
    QString language_;                ///< file of the texts in use

    QMap<QString, QAction*> actions_;
    QToolBar* tools_ = nullptr;
    QSplitter* parts_ = nullptr;
    QSplitter* left_ = nullptr;
    QWidget* leftDock_ = nullptr;
    QStackedWidget* right_ = nullptr;
    EdgeTab* leftTab_ = nullptr;
    EdgeTab* rightTab_ = nullptr;
    Veil* leftVeil_ = nullptr;
    Veil* rightVeil_ = nullptr;
    BusyBar* busy_ = nullptr;
    NoticeBar* notice_ = nullptr;
    BlocksPanel* blocks_ = nullptr;
    LayersPanel* layers_ = nullptr;
    PropertiesPanel* properties_ = nullptr;
    JobPage* page_ = nullptr;
    Canvas* canvas_ = nullptr;
    CommandLine* commandLine_ = nullptr;
    StatusLine* status_ = nullptr;

    std::unique_ptr<forms::Screen> face_;
    DialogWatch* watch_ = nullptr;
    CanvasPrompter* prompter_ = nullptr;
    Session* session_ = nullptr;
    Files* files_ = nullptr;
    JobView* jobs_ = nullptr;
    HelpWindow* help_ = nullptr;  ///< from its first page on
    RunWatch* work_ = nullptr;

    std::vector<drawing::BlockId> spaces_;  ///< of the tabs
    std::vector<drawing::EntityId> previousSelection_;
    bool leftUnfolded_ = false;  ///< opened by its edge tab in a narrow window
    bool rightUnfolded_ = false;
    bool alone_ = false;
    bool showsSelection_ = false;  ///< the status tells the number selected
    std::uint64_t listedRevision_ = 0;
};

}  // namespace window

#include "desk/window/layers_panel.h"

#include "desk/window/color_choice.h"
#include "desk/window/panel.h"
#include "faces/qt/qt_text.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace window {

LayersPanel::LayersPanel(QWidget* parent)
    : ListPanel(parent),
      searchTool_(head_->addTool("search")),
      more_(head_->addTool("more")),
      model_(new LayerListModel(this)) {
    searchTool_->setCheckable(true);
    search_->hide();
    build(model_, new LayerDelegate(*model_, list_), more_, 0);
    list_->viewport()->installEventFilter(this);
    list_->installEventFilter(this);

    connect(searchTool_, &QToolButton::toggled, this, [this](bool on) {
        search_->setVisible(on);
        if (on) search_->setFocus();
        if (!on) search_->clear();
    });
    connect(list_, &QListView::activated, this, [this] { ask(LayerAct::MakeCurrent); });
    retranslate();
    show(nullptr);
}

void LayersPanel::show(const drawing::Drawing* drawing) {
    hasDrawing_ = drawing != nullptr;
    rows_ = hasDrawing_ ? layerRows(*drawing) : std::vector<LayerRow>();
    filter();
}

void LayersPanel::filter() {
    const QString before = chosen();
    const QString wanted = search_->text().trimmed();
    std::vector<LayerRow> shown;
    int chosenRow = -1;
    for (const LayerRow& row : rows_) {
        const QString name = QString::fromStdString(row.name);
        if (!wanted.isEmpty() && !name.contains(wanted, Qt::CaseInsensitive)) continue;
        if (name == before) chosenRow = static_cast<int>(shown.size());
        shown.push_back(row);
    }
    showCount(shown.size(), hasDrawing_, hasDrawing_ ? tr("No layer matches") : tr("No drawing is open"));
    model_->setRows(std::move(shown));
    if (chosenRow >= 0) list_->setCurrentIndex(model_->index(chosenRow));
}

void LayersPanel::setScheme(Scheme scheme) {
    static_cast<LayerDelegate*>(list_->itemDelegate())->setScheme(scheme);
    list_->viewport()->update();
}

void LayersPanel::focusList() {
    list_->setFocus(Qt::ShortcutFocusReason);
    if (!list_->currentIndex().isValid() && model_->rowCount() > 0) list_->setCurrentIndex(model_->index(0));
}

QString LayersPanel::chosen() const {
    const QModelIndex index = list_->currentIndex();
    return index.isValid() ? QString::fromStdString(model_->row(index.row()).name) : QString();
}

void LayersPanel::ask(LayerAct act) {
    if (!chosen().isEmpty()) emit actAsked(act, chosen());
}

bool LayersPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == list_->viewport() && event->type() == QEvent::MouseButtonRelease) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const QModelIndex index = list_->indexAt(mouse->pos());
        const auto act = LayerDelegate::actAt(mouse->pos().x());
        if (mouse->button() == Qt::LeftButton && index.isValid() && act) {
            emit actAsked(*act, QString::fromStdString(model_->row(index.row()).name));
            return true;
        }
    }
    if (watched == list_->viewport() && event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        static const char* const kTips[] = {QT_TR_NOOP("Make current"), QT_TR_NOOP("On or off"),
                                            QT_TR_NOOP("Freeze or thaw"), QT_TR_NOOP("Lock or unlock"),
                                            QT_TR_NOOP("Colour")};
        const auto act = LayerDelegate::actAt(help->pos().x());
        QToolTip::showText(help->globalPos(), act ? tr(kTips[static_cast<int>(*act)]) : QString());
        return true;
    }
    if (watched == list_ && event->type() == QEvent::KeyPress) {
        // The letters of the states, for hands without a mouse; Space makes current.
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Space:
                ask(LayerAct::MakeCurrent);
                return true;
            case Qt::Key_O:
                ask(LayerAct::SwitchOn);
                return true;
            case Qt::Key_F:
                ask(LayerAct::Freeze);
                return true;
            case Qt::Key_L:
                ask(LayerAct::Lock);
                return true;
            case Qt::Key_C:
                ask(LayerAct::ChooseColor);
                return true;
            default:
                break;
        }
    }
    return ListPanel::eventFilter(watched, event);
}

void LayersPanel::openMenu(const QPoint& place) {
    const QModelIndex index = list_->currentIndex();
    if (!index.isValid()) return;
    const LayerRow row = model_->row(index.row());
    QMenu menu(this);
    menu.addSection(qt_face::toShown(row.name));
    menu.addAction(tr("Make current"), this, [this] { ask(LayerAct::MakeCurrent); })
        ->setEnabled(!row.current);
    menu.addAction(row.on ? tr("Switch off") : tr("Switch on"), this, [this] { ask(LayerAct::SwitchOn); });
    menu.addAction(row.frozen ? tr("Thaw") : tr("Freeze"), this, [this] { ask(LayerAct::Freeze); });
    menu.addAction(row.locked ? tr("Unlock") : tr("Lock"), this, [this] { ask(LayerAct::Lock); });
    menu.addAction(tr("Colour…"), this, [this] { ask(LayerAct::ChooseColor); });
    menu.addSeparator();
    const QString name = QString::fromStdString(row.name);
    menu.addAction(tr("Select what stands on it"), this, [this, name] { emit selectEntities(name); });
    menu.exec(list_->viewport()->mapToGlobal(place));
}

void LayersPanel::retranslate() {
    head_->setTitle(tr("Layers"));
    nameSearch(tr("Search layers"));
    list_->setAccessibleName(tr("Layers"));
    setTip(searchTool_, tr("Search layers"));
    setTip(more_, tr("What to do with the layer"));
    filter();
}

}  // namespace window

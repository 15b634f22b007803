#include "desk/window/blocks_panel.h"

#include "desk/window/block_list_model.h"
#include "desk/window/icons.h"
#include "desk/window/panel.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace window {

namespace {

bool matches(const BlockRow& row, const QString& wanted) {
    if (wanted.isEmpty() || QString::fromStdString(row.name).contains(wanted, Qt::CaseInsensitive))
        return true;
    return std::any_of(row.tags.begin(), row.tags.end(), [&wanted](const std::string& tag) {
        return QString::fromStdString(tag).contains(wanted, Qt::CaseInsensitive);
    });
}

}  // namespace

BlocksPanel::BlocksPanel(Picture picture, QWidget* parent)
    : ListPanel(parent),
      eye_(head_->addTool("eye-off")),
      more_(head_->addTool("more")),
      hiddenCount_(addNote()),
      model_(new BlockListModel(this)) {
    eye_->setCheckable(true);
    eye_->setChecked(true);
    search_->addAction(icon("search"), QLineEdit::LeadingPosition);
    empty_->setWordWrap(true);
    hiddenCount_->setWordWrap(true);
    build(model_, new BlockDelegate(*model_, std::move(picture), list_), more_, 6);
    column_->addWidget(hiddenCount_);

    connect(eye_, &QToolButton::toggled, this, &BlocksPanel::filter);
    connect(list_, &QListView::activated, this, [this](const QModelIndex& index) {
        emit selectReferences(QString::fromStdString(model_->row(index.row()).name));
    });
    retranslate();
    show(nullptr);
}

void BlocksPanel::show(const drawing::Drawing* drawing) {
    hasDrawing_ = drawing != nullptr;
    rows_ = hasDrawing_ ? blockRows(*drawing) : std::vector<BlockRow>();
    filter();
}

void BlocksPanel::filter() {
    const QString before = chosen();
    const QString wanted = search_->text().trimmed();
    std::vector<BlockRow> shown;
    std::size_t hidden = 0;
    for (const BlockRow& row : rows_) {
        if (!matches(row, wanted)) continue;
        if (row.ofDimension && eye_->isChecked()) {
            ++hidden;
        } else {
            shown.push_back(row);
        }
    }
    showCount(shown.size(), hasDrawing_,
              !hasDrawing_    ? tr("No drawing is open")
              : rows_.empty() ? tr("The drawing has no blocks")
                              : tr("No block matches"));
    hiddenCount_->setText(tr("%n of dimensions (*D…) hidden", nullptr, static_cast<int>(hidden)));
    hiddenCount_->setVisible(hidden > 0);
    eye_->setIcon(icon(eye_->isChecked() ? "eye-off" : "eye"));
    model_->setRows(std::move(shown));
    choose(before);
}

void BlocksPanel::setScheme(Scheme scheme) {
    static_cast<BlockDelegate*>(list_->itemDelegate())->setScheme(scheme);
    list_->viewport()->update();
}

void BlocksPanel::forgetPictures() {
    static_cast<BlockDelegate*>(list_->itemDelegate())->forgetPictures();
    list_->viewport()->update();
}

void BlocksPanel::choose(const QString& block) {
    const int row = block.isEmpty() ? -1 : model_->find(block);
    if (row < 0) {
        list_->clearSelection();
        list_->setCurrentIndex({});
        return;
    }
    list_->setCurrentIndex(model_->index(row));
    list_->scrollTo(model_->index(row));
}

QString BlocksPanel::chosen() const {
    const QModelIndex index = list_->currentIndex();
    return index.isValid() ? QString::fromStdString(model_->row(index.row()).name) : QString();
}

void BlocksPanel::focusList() {
    (list_->isVisible() ? static_cast<QWidget*>(list_) : search_)->setFocus(Qt::ShortcutFocusReason);
    if (!list_->currentIndex().isValid() && model_->rowCount() > 0) list_->setCurrentIndex(model_->index(0));
}

void BlocksPanel::focusSearch() {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
}

bool BlocksPanel::hidesDimensions() const { return eye_->isChecked(); }
void BlocksPanel::setHidesDimensions(bool hide) { eye_->setChecked(hide); }

void BlocksPanel::addJob(QMenu& menu, const QString& text, const QString& command, const QString& block) {
    menu.addAction(text, this, [this, command, block] { emit jobAsked(command, block); })
        ->setEnabled(!block.isEmpty());
}

void BlocksPanel::openMenu(const QPoint& place) {
    const QString block = chosen();
    QMenu menu(this);
    if (!block.isEmpty()) menu.addSection(block);
    menu.addAction(tr("Select references"), this, [this, block] { emit selectReferences(block); })
        ->setEnabled(!block.isEmpty());
    addJob(menu, tr("Show"), "SHOW", block);
    menu.addSeparator();
    addJob(menu, tr("Label with this block…"), "VNLABEL", block);
    addJob(menu, tr("Replace this block…"), "VNREPLACE", block);
    addJob(menu, tr("Extract this block…"), "VNEXTRACT", block);
    addJob(menu, tr("Insert this block from a file…"), "VNINSERT", block);
    menu.addSeparator();
    QAction* hide = menu.addAction(tr("Hide what dimensions made"), this, [this] { eye_->toggle(); });
    hide->setCheckable(true);
    hide->setChecked(eye_->isChecked());
    menu.exec(list_->viewport()->mapToGlobal(place));
}

void BlocksPanel::retranslate() {
    head_->setTitle(tr("Blocks"));
    nameSearch(tr("Search blocks and tags"));
    list_->setAccessibleName(tr("Blocks"));
    setTip(eye_, tr("Hide what dimensions made"));
    setTip(more_, tr("What to do with the block"));
    filter();
}

}  // namespace window

#include "desk/window/job_view.h"

#include "basic/error.h"
#include "desk/window/canvas_prompter.h"
#include "desk/window/drawing_lists.h"
#include "faces/qt/qt_text.h"
#include "forms/controls.h"
#include "forms/form.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <unordered_set>

namespace window {

namespace {

using drawing::EntityId;

template <typename T>
T* find(forms::Form* form, const char* name) {
    return form == nullptr ? nullptr : dynamic_cast<T*>(form->findControl(name));
}

QString textOf(const std::string& text) { return QString::fromStdString(text); }

/// The text of a combo or a list; empty for what is none.
QString chosenText(forms::Form* form, const char* name) {
    if (auto* list = find<forms::ListBox>(form, name)) return textOf(list->text());
    if (auto* combo = find<forms::ComboBox>(form, name)) return textOf(combo->text());
    return {};
}

bool isOn(forms::Form* form, const char* name) {
    if (auto* check = find<forms::CheckBox>(form, name)) return check->value() == 1;
    if (auto* option = find<forms::OptionButton>(form, name)) return option->value();
    return false;
}

/// What dialogs hide of the canvas.
QRect coveredPart(const Canvas& canvas) {
    QRect covered;
    for (const QWidget* each : QApplication::topLevelWidgets()) {
        if (!each->isVisible() || each == canvas.window() || (each->windowFlags() & Qt::Dialog) != Qt::Dialog)
            continue;
        covered |= each->frameGeometry().translated(-canvas.mapToGlobal(QPoint()));
    }
    return covered;
}

/// Above this number only base points are drawn of what is to come; the canvas knows, the legend stays.
constexpr const char* kInsertionPrompt = "point d'insertion du bloc";

}  // namespace

JobView::JobView(Session& session, DialogWatch& watch, Canvas& canvas, CanvasPrompter& prompter,
                 const basic::Regional& regional, QObject* parent)
    : QObject(parent),
      session_(session),
      watch_(watch),
      canvas_(canvas),
      prompter_(prompter),
      regional_(regional) {
    connect(&watch_, &DialogWatch::formChanged, this, &JobView::update);
    connect(&watch_, &DialogWatch::shownChanged, this, [this] {
        choosePrefilled();
        update();
    });
    connect(&watch_, &DialogWatch::boxShown, this, [this](const std::string& text) {
        // The box tells the end of a run: by then it is known what the step did.
        if (watch_.shown().empty()) return;
        forms::Form* form = watch_.shown().back();
        if (form->name() == "fmReplace")
            nameStep(tr("Replacement of %1"), chosenText(form, "lstDestination"));
        if (form->name() == "fmReInsert") noteRun(*form, text);
    });
    prompter_.setPreparation([this](CanvasPrompt& prompt) { prepare(prompt); });
}

void JobView::prefill(const QString& command, const QString& block) {
    prefillBlock_ = block;
    if (command == "VNREPLACE") prefillForm_ = "fmReplace", prefillControl_ = "lstDestination";
    if (command == "VNLABEL") prefillForm_ = "fmLabels", prefillControl_ = "Combo2";
    if (command == "VNINSERT") prefillForm_ = "fmReInsert", prefillControl_ = "Combo1";
    if (command == "VNEXTRACT") prefillForm_.clear();
}

void JobView::choosePrefilled() {
    if (prefillForm_.isEmpty() || watch_.shown().empty()) return;
    forms::Form* form = watch_.shown().back();
    if (textOf(form->name()) != prefillForm_) return;
    prefillForm_.clear();
    auto* list = dynamic_cast<forms::ListControl*>(form->findControl(prefillControl_.toStdString()));
    for (int i = 0; list != nullptr && i < list->listCount(); ++i) {
        if (textOf(list->list(i)).compare(prefillBlock_, Qt::CaseInsensitive) != 0) continue;
        try {
            list->setListIndex(i);
        } catch (const basic::Error& error) {
            session_.tell(qt_face::toShown(error.description()));
        }
        return;
    }
}

void JobView::update() {
    if (scheduled_ || held_) return;
    scheduled_ = true;
    QTimer::singleShot(0, this, [this] {
        scheduled_ = false;
        if (!held_) showNow();
    });
}

void JobView::hold(bool on) {
    held_ = on;
    run_.reset();
    if (!on) update();
}

/// A replacement takes away what was lit, an insertion adds a reference for each row.
double JobView::share() {
    if (watch_.shown().empty() || !session_.hasDrawing()) return -1;
    const drawing::Drawing& drawing = session_.drawing();
    forms::Form* form = watch_.shown().back();
    const bool replaces = form->name() == "fmReplace";
    if (!replaces && form->name() != "fmReInsert") return -1;
    if (!run_) {
        auto* rows = find<forms::ListView>(form, "ListView2");
        run_ = Run{replaces ? marks_.lit.size()
                   : rows   ? static_cast<std::size_t>(rows->listItems().count())
                            : 0,
                   0, session_.firstOfCommand()};
    }
    Run& run = *run_;
    if (replaces) {
        while (run.done < run.all && drawing.isErased(marks_.lit[run.done])) ++run.done;
    } else {
        for (; run.next < drawing.firstFree(); ++run.next)
            run.done += drawing.isErased(run.next) || drawing.type(run.next) != "INSERT" ? 0 : 1;
    }
    return run.all == 0 ? -1 : static_cast<double>(run.done) / static_cast<double>(run.all);
}

void JobView::end() {
    prefillForm_.clear();
    const std::vector<geometry::Point3> failed = std::move(marks_.failed);
    marks_ = {};
    marks_.failed = failed;
    canvas_.setMarks(marks_);
    ranKey_.clear();
    failedRows_.clear();
    if (pageShown_) emit pageGone();
    pageShown_ = false;
}

void JobView::begin() {
    marks_ = {};
    canvas_.setMarks(marks_);
}

QString JobView::faultOf(const forms::Control& table, int row) const {
    if (failedRows_.empty() || table.name() != "ListView2" || table.form().name() != "fmReInsert") return {};
    const auto found = failedRows_.find(row);
    return found == failedRows_.end() ? QString() : found->second;
}

void JobView::showNow() {
    if (!session_.isRunning() || !session_.hasDrawing()) return;
    forms::Form* form = watch_.shown().empty() ? nullptr : watch_.shown().back();
    const QString name = form == nullptr ? QString() : textOf(form->name());
    canvas_.drawingChanged();
    if (name == "fmReplace") return showReplacement(*form);
    if (name == "fmAttSet" && watch_.find("fmReplace") != nullptr)
        return showReplacement(*watch_.find("fmReplace"));
    if (name == "fmExtract") return showExtraction(*form);
    if (name == "fmReInsert") return showInsertion(*form);
    if (form == nullptr) {
        marks_ = {};
        canvas_.setMarks(marks_);
        emit marksChanged({});
    }
}

std::vector<EntityId> JobView::replaced(const QString& block, bool wholeDrawing) const {
    std::vector<EntityId> all = entitiesNamed(session_.drawing(), block.toStdString());
    if (wholeDrawing) return all;
    const std::vector<EntityId>& zone = prompter_.lastSelection();
    const std::unordered_set<EntityId> inZone(zone.begin(), zone.end());
    std::erase_if(all, [&inZone](EntityId id) { return !inZone.contains(id); });
    return all;
}

void JobView::showReplacement(forms::Form& form) {
    const drawing::Drawing& drawing = session_.drawing();
    const QString from = chosenText(&form, "lstDestination");
    const QString chosen = chosenText(&form, "CboBlocReplacer");
    const drawing::BlockId to = drawing.blocks().find(chosen.toStdString());
    marks_ = {};
    if (!from.isEmpty()) marks_.lit = replaced(from, isOn(&form, "optZoneAll"));
    marks_.stepsBack = true;
    marks_.toCome = to;
    if (!marks_.lit.empty())
        marks_.legend = tr("%1, %2 lit").arg(qt_face::toShown(from)).arg(marks_.lit.size());
    if (to != drawing::kNoBlock && !marks_.lit.empty())
        marks_.legendToCome = tr("%1 to come").arg(qt_face::toShown(chosen));
    canvas_.setMarks(marks_);
    emit replacementShown(replacementView(form, from, to == drawing::kNoBlock ? QString() : chosen));
    pageShown_ = true;
    const auto hidden = std::count_if(marks_.lit.begin(), marks_.lit.end(),
                                      [&drawing](EntityId id) { return !drawing.common(id).visible; });
    emit marksChanged(tr("%1 lit").arg(marks_.lit.size()) + "   " +
                      tr("%1 in view").arg(canvas_.inView(marks_.lit)) + ", " +
                      tr("%n invisible", nullptr, static_cast<int>(hidden)));
}

std::size_t JobView::countOf(const QString& block) {
    const drawing::Drawing& drawing = session_.drawing();
    if (countedRevision_ != drawing.revision()) counts_.clear();
    countedRevision_ = drawing.revision();
    const auto known = counts_.find(block);
    if (known != counts_.end()) return known->second;
    return counts_[block] = referencesOf(drawing, block.toStdString()).size();
}

ReplacementView JobView::replacementView(forms::Form& form, const QString& from, const QString& to) {
    const drawing::Drawing& drawing = session_.drawing();
    const drawing::BlockTable& blocks = drawing.blocks();
    const drawing::BlockId fromBlock = blocks.find(from.toStdString());
    const drawing::BlockId toBlock = to.isEmpty() ? drawing::kNoBlock : blocks.find(to.toStdString());
    ReplacementView view;
    view.from = from;
    view.to = to;
    const QSize box = JobPage::pictureBox();
    double scale = 0;  // both at one scale, so that they can be compared
    for (const drawing::BlockId block : {fromBlock, toBlock}) {
        if (block != drawing::kNoBlock) scale = std::max(scale, canvas_.fittingScale(block, box));
    }
    const Scheme scheme = schemeOf(canvas_.palette());
    if (fromBlock != drawing::kNoBlock) {
        view.fromPicture = canvas_.blockPicture(fromBlock, box, color(Token::Select, scheme), true, scale);
        view.fromReferences = countOf(from);
    }
    if (toBlock != drawing::kNoBlock) {
        view.toPicture = canvas_.blockPicture(toBlock, box, color(Token::Preview, scheme), true, scale);
        view.toReferences = countOf(to);
    }
    if (fromBlock != drawing::kNoBlock && toBlock != drawing::kNoBlock) {
        // The table counts for the two blocks that it was built for, and when it is to be used at all.
        forms::Form* table = isOn(&form, "ChkAttSet") ? watch_.find("fmAttSet") : nullptr;
        auto* built = find<forms::Label>(table, "Label1");
        auto* builtTo = find<forms::Label>(table, "Label2");
        const bool fits = built != nullptr && builtTo != nullptr && textOf(built->caption()) == from &&
                          textOf(builtTo->caption()) == to;
        auto* rows = fits ? find<forms::ListView>(table, "ListView1") : nullptr;
        int row = 0;
        for (const EntityId definition : blocks[fromBlock].attributeDefinitions) {
            ++row;
            const bool known = rows != nullptr && row <= rows->listItems().count();
            view.values.emplace_back(textOf(drawing.attributeTag(definition)),
                                     known ? textOf(rows->listItems().item(row).subItem(1)) : QString());
        }
    }
    std::size_t invisible = 0;
    std::map<drawing::BlockId, std::size_t> bySpace;
    for (const EntityId id : marks_.lit) {
        ++bySpace[drawing.owner(id)];
        if (!drawing.common(id).visible) ++invisible;
    }
    for (drawing::BlockId space = 0; space < blocks.size(); ++space) {
        if (blocks[space].isErased || !blocks[space].isLayout()) continue;
        view.counts.emplace_back(textOf(std::string(blocks[space].shownLayoutName())),
                                 QString::number(bySpace[space]));
    }
    view.counts.emplace_back(tr("Invisible"), QString::number(invisible));
    const QString layer = textOf(drawing.header().text("$CLAYER").value_or("0"));
    view.counts.emplace_back(tr("Come in on"), tr("layer %1").arg(layer));
    view.note = tr("New references come in visible, on the current layer.");
    if (invisible > 0) view.note += " " + tr("Invisible ones are lit dotted.");
    return view;
}

/// The rows stand in the order of the zone that was selected last, so a row's number leads to its reference.
void JobView::showExtraction(forms::Form& form) {
    auto* table = find<forms::ListView>(&form, "ListView2");
    auto* label = find<forms::Label>(&form, "Label1");
    if (table == nullptr || label == nullptr) return;
    const drawing::Drawing& drawing = session_.drawing();
    marks_ = {};
    marks_.stepsBack = true;
    for (const EntityId id : prompter_.lastSelection()) {
        if (!drawing.isErased(id) && drawing.type(id) == "INSERT" && drawing.name(id) == label->caption()) {
            marks_.lit.push_back(id);
        }
    }
    const int rows = table->listItems().count();
    const bool fits = rows > 0 && static_cast<std::size_t>(rows) == marks_.lit.size();
    if (!fits) marks_.lit.clear();
    QString shown = tr("%n rows", nullptr, rows);
    if (fits && table->hasSelectedItem()) {
        const int row = table->selectedItem().index();
        marks_.shownRow = marks_.lit[static_cast<std::size_t>(row - 1)];
        marks_.shownRowText = tr("Row %1 of %2").arg(row).arg(rows);
        const std::vector<EntityId> attributes = drawing.attributes(marks_.shownRow);
        if (!attributes.empty())
            marks_.shownRowText += ", " + qt_face::toShown(drawing.attributeText(attributes.front()));
        shown += "   " + tr("row %1 shown").arg(row);
    }
    canvas_.setMarks(marks_);
    if (marks_.shownRow != drawing::kNoEntity) canvas_.reveal(marks_.shownRow, coveredPart(canvas_));
    emit rowShown(marks_.shownRow);
    emit marksChanged(rows == 0 ? QString() : shown);
}

/// Which rows failed is what the run itself reports; why, the plan knows.
void JobView::noteRun(forms::Form& form, const std::string& report) {
    const InsertionPlan plan = insertionPlan(form, regional_);
    if (plan.rows == 0) return;
    nameStep(tr("Insertion of %1"), plan.block);
    failedRows_.clear();
    ranKey_ = plan.key;
    for (const int row : reportedRows(report)) {
        const auto fault = plan.faults.find(row);
        failedRows_[row] =
            fault != plan.faults.end() ? fault->second.reason : tr("This row was not inserted");
    }
    showNow();
}

/// Before the run what would come, after it what failed.
void JobView::showInsertion(forms::Form& form) {
    constexpr int kMostFaults = 12;
    const drawing::BlockTable& blocks = session_.drawing().blocks();
    InsertionPlan plan = insertionPlan(form, regional_);
    const bool hasRun = !plan.key.isEmpty() && plan.key == ranKey_;
    if (!hasRun) ranKey_.clear(), failedRows_.clear();
    const drawing::BlockId block = blocks.find(plan.block.toStdString());
    marks_ = {};
    InsertionView view;
    if (block != drawing::kNoBlock) {
        view.block = plan.block;
        const QColor pen = color(hasRun ? Token::Select : Token::Preview, schemeOf(canvas_.palette()));
        view.picture = canvas_.blockPicture(block, JobPage::pictureBox(), pen, true);
    }
    const auto readable = plan.places.size();
    view.counts.emplace_back(tr("In the file"), QString::number(plan.rows));
    if (hasRun) {
        view.counts.emplace_back(tr("Inserted"),
                                 QString::number(plan.rows - static_cast<int>(failedRows_.size())));
        view.counts.emplace_back(tr("Failed"), QString::number(failedRows_.size()));
        for (const auto& [row, reason] : failedRows_) {
            if (static_cast<int>(view.faults.size()) == kMostFaults) {
                view.note = tr("and %n more, marked in the table", nullptr,
                               static_cast<int>(failedRows_.size()) - kMostFaults);
                break;
            }
            view.faults.emplace_back(QString::number(row), reason);
        }
        for (const auto& [row, fault] : plan.faults) {
            if (failedRows_.count(row) != 0)
                marks_.failed.insert(marks_.failed.end(), fault.at.begin(), fault.at.end());
        }
    } else if (block != drawing::kNoBlock && plan.rows > 0) {
        view.counts.emplace_back(tr("Can be read"), QString::number(readable));
        marks_.toCome = block;
        marks_.toComeAt = std::move(plan.places);
        marks_.stepsBack = true;
        if (readable > 0)
            marks_.legendToCome = tr("%1, %2 to come").arg(qt_face::toShown(plan.block)).arg(readable);
    }
    canvas_.setMarks(marks_);
    emit insertionShown(view);
    pageShown_ = true;
    emit marksChanged({});
}

void JobView::nameStep(const QString& name, const QString& block) {
    if (!block.isEmpty() && session_.hasDrawing()) session_.drawing().nameStep(name.arg(block).toStdString());
}

void JobView::prepare(CanvasPrompt& prompt) {
    if (!session_.hasDrawing()) return;
    const drawing::BlockTable& blocks = session_.drawing().blocks();
    if (forms::Form* form = watch_.find("fmReplace"); form != nullptr && prompt.asking == Asking::Selection) {
        prompt.job = blocks.find(chosenText(form, "lstDestination").toStdString());
    }
    forms::Form* labels = watch_.find("fmLabels");
    if (labels == nullptr || !prompt.text.contains(kInsertionPrompt)) return;
    nameStep(tr("Labels of %1"), chosenText(labels, "Combo2"));
    prompt.hanging = blocks.find(chosenText(labels, "Combo2").toStdString());
    if (forms::Form* settings = watch_.find("fmParamIns")) {
        const auto number = [&](const char* name, double otherwise) {
            const auto* field = find<forms::TextBox>(settings, name);
            try {
                return field == nullptr ? otherwise : basic::toDouble(field->text(), regional_);
            } catch (const basic::Error&) {
                return otherwise;
            }
        };
        prompt.hangingScale = {number("Text1", 1), number("Text2", 1), number("Text3", 1)};
        if (!isOn(settings, "CheckBox1")) prompt.hangingRotation = number("Text4", 0) * geometry::kPi / 180;
    }
    auto* rows = find<forms::ListView>(labels, "ListView1");
    for (int row = 1; rows != nullptr && row <= rows->listItems().count(); ++row) {
        const forms::ListItem& item = rows->listItems().item(row);
        const QString value = textOf(item.subItem(2));
        prompt.hangingValues.emplace_back(textOf(item.subItem(1)),
                                          value.isEmpty() ? QString::fromUtf8("…") : value);
    }
}

}  // namespace window

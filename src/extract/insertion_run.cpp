#include "extract/insertion_run.h"

#include "basic/error_state.h"
#include "basic/numbers.h"
#include "extract/messages.h"
#include "host/document.h"
#include "host/object.h"
#include "language/language.h"
#include "platform/platform.h"

#include <utility>

namespace extract {

InsertionRun::InsertionRun(const session::Session& session, const ParameterList& parameters,
                           std::string blockName, bool addLeader)
    : session_(session), parameters_(parameters), blockName_(std::move(blockName)), addLeader_(addLeader) {
    basic::ErrorState errors;
    errors.skip([&] { report_ = language::GetMsg(session_, kInserted) + "\r\n"; });
}

void InsertionRun::insertRows(int count) {
    for (int row = 1; row <= count; ++row) {
        try {
            insertRow(row);
        } catch (const basic::Error& error) {
            // A text that is no number. Any other failure drops the row without a word.
            if (error.number() == basic::kTypeMismatch) reportRow(row);
        }
    }
}

/// Nothing is guarded here: the run's handler takes each failure. A line drawn before it stays, as does a
/// reference with the attributes filled so far.
void InsertionRun::insertRow(int row) const {
    const auto space = [&] { return host::Document(session_.AcadDoc).ModelSpace(); };
    host::Point point{number("X_", row), number("Y_", row), number("Z_", row)};
    if (addLeader_) {
        const host::Point start = point;
        point[0] += number("DeltaX", row);
        point[1] += number("DeltaY", row);
        point[2] += number("DeltaZ", row);
        space().AddLine(host::toVariant(start), host::toVariant(point));
    }
    const double xScale = number("Ech.X", row);
    const double yScale = number("Ech.Y", row);
    const double zScale = number("Ech.Z", row);
    const double rotation = number("Rotation(rd)", row);  // in radians, as the file has it
    const host::BlockReference reference =
        space().InsertBlock(host::toVariant(point), blockName_, xScale, yScale, zScale, rotation);

    const host::Attributes attributes = reference.GetAttributes();
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const host::AttributeReference attribute = attributes.at(i);
        attribute.setTextString(parameters_.GetParameterValue(attribute.TagString(), row));
    }
    reference.Update();
}

double InsertionRun::number(const char* parameter, int row) const {
    return basic::toDouble(parameters_.GetParameterValue(parameter, row), session_.platform().regional());
}

void InsertionRun::reportRow(int row) {
    if (!rowTexts_)
        rowTexts_.emplace(language::GetMsg(session_, kRowFailed), language::GetMsg(session_, kNotInserted));
    report_.append(rowTexts_->first).append(std::to_string(row)).append(rowTexts_->second).append("\r\n");
    icon_ = forms::MessageDialog::Icon::Exclamation;
}

}  // namespace extract

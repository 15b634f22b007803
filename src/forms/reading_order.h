#pragma once

#include <vector>

namespace forms {

class Control;
class Form;

/// The controls that have a place, as one reads them: row by row, each row from left to right, a container
/// before what it holds. Controls of one container stand in a row when the middle of one lies beside the
/// other.
std::vector<Control*> readingOrder(const Form& form);

}  // namespace forms

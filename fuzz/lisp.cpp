// Lisp text: read, evaluate with a bound on the steps, print.
#include "basic/border.h"
#include "desk/lisp/interpreter.h"
#include "desk/lisp/printer.h"
#include "fuzz/fuzz_input.h"

#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::ostringstream output;
    lisp::Interpreter lisp(output);
    int looks = 0;
    lisp.setWatch([&] {
        if (++looks > 20 || output.tellp() > 1'000'000) throw basic::Interruption("enough");
    });
    try {
        lisp::printed(lisp.eval(fuzz::text(data, size)), lisp::Style::Readable, 10'000);
    } catch (const basic::Error&) {
    } catch (const basic::Interruption&) {
    }
    return 0;
}

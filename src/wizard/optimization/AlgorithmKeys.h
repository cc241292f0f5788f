#pragma once

#include <array>

/// One of the numbers that steer the algorithm.
struct TAlgorithmKey {
    const char* pKey;     ///< its name in the command, and the key of its field
    const char* pLabel;   ///< a translatable literal
    const char* pDefault; ///< what the field holds on each entry to the step
    const char* pHelp;    ///< a translatable literal, shown while the field has the focus
};

/// All of them, in the order in which they are shown and written.
inline constexpr auto kAlgorithmKeys = std::to_array<TAlgorithmKey>({
    {"cendif", "__$$Translatable$$_&Cendif:", "1e-9",
     "__$$Translatable$$_Gradient value below which more accurate derivative computation methods "
     "are used to compute the gradient"},
    {"close", "__$$Translatable$$_C&lose:", "0.001",
     "__$$Translatable$$_An estimate of how close the optimization parameters' initial value "
     "estimates are to the solution. close multiplies changes to new parameter estimates.  Larger "
     "values result in larger steps toward the solution."},
    {"cut", "__$$Translatable$$_C&ut:", "2",
     "__$$Translatable$$_Modifies close from one iteration to the next.  If an iteration was "
     "unsuccessful, close is divided by cut, while a successful step results in close being "
     "multiplied by cut squared."},
    {"difsiz", "__$$Translatable$$_&Difsiz:", "1e-3",
     "__$$Translatable$$_Determines the increment in a parameter value used to compute numerical "
     "derivatives.  The increment used is difsiz*max(value,parmin), where value is the parameter "
     "value.  If delta is specified on the .param command, then delta is used as the increment."},
    {"grad", "__$$Translatable$$_&Grad:", "1e-6",
     "__$$Translatable$$_Convergence tolerance for the gradient.  If the gradient is less than "
     "grad, then convergence may have been achieved, depending on the outcome of the additional "
     "relin and relout tests."},
    {"itropt", "__$$Translatable$$_I&tropt:", "20",
     "__$$Translatable$$_Maximum number of optimization loop iterations"},
    {"max", "__$$Translatable$$_&Max:", "600000", "__$$Translatable$$_Upper limit for close"},
    {"parmin", "__$$Translatable$$_&Parmin:", "0.1",
     "__$$Translatable$$_Used in increment selection for derivative computation"},
    // Meant: the doubled percent sign.
    {"relin", "__$$Translatable$$_&Relin:", "0.001",
     "__$$Translatable$$_Relative input parameter variation for convergence.  If all optimization "
     "parameters (defined with .param) vary by less than this amount (0.1%% by default) from one "
     "iteration to the next, convergence is declared"},
    {"relout", "__$$Translatable$$_Rel&out:", "0.001",
     "__$$Translatable$$_Relative output parameter variation for convergence.  If the total error "
     "defined by measurement results varies by less than this amount from one iteration to the "
     "next, convergence is declared."},
});

#include "wizard/setup/ParameterDefinition.h"

#include "wizard/frame/PageText.h"

namespace
{
constexpr const char* kMissingName = "__$$Translatable$$_Missing parameter name.";

const TDistribution& DistributionOf(const TParameterFields& rFields)
{
    return kDistributions.at(static_cast<std::size_t>(rFields.mnDistribution));
}

const char* DefineGeneral(const TParameterFields& rFields, const TDefinitionWriter& rWriter,
                          CString& rsText)
{
    const CString& rsName = rFields.mTexts[1];
    const CString& rsValue = rFields.mTexts[2];
    if (rsName.IsEmpty() && rsValue.IsEmpty())
        return "__$$Translatable$$_Missing parameter name and value.";
    if (rsValue.IsEmpty())
        return "__$$Translatable$$_Missing parameter value.";
    if (rsName.IsEmpty())
        return kMissingName;
    rsText = rWriter.pBefore + rsName + "=" + rsValue;
    return nullptr;
}

const char* DefineMonteCarlo(const TParameterFields& rFields, const TDefinitionWriter& rWriter,
                             CString& rsText)
{
    const auto& [rsName, rsNominal, rsVariation, rsSigma, rsMultiplier, rsUnused] = rFields.mTexts;
    const TDistribution& rDistribution = DistributionOf(rFields);
    if (rsName.IsEmpty())
        return kMissingName;
    rsText = rWriter.pBefore + rsName; // Meant: a check that fails from here on leaves it there
    if (rsNominal.IsEmpty())
        return "__$$Translatable$$_Missing nominal value.";
    if (rsVariation.IsEmpty())
        return rDistribution.pMissingVariation;
    if (rDistribution.bSigma && rsSigma.IsEmpty())
        return "__$$Translatable$$_Missing sigma value.";
    rsText += rDistribution.pFunction + rsNominal + "," + rsVariation;
    if (rDistribution.bSigma)
        rsText += "," + rsSigma;
    if (rDistribution.pBeforeMultiplier)
        gAppendIfAny(rsText, rDistribution.pBeforeMultiplier, rsMultiplier);
    rsText += ")";
    return nullptr;
}

const char* DefineOptimization(const TParameterFields& rFields, const TDefinitionWriter& rWriter,
                               CString& rsText)
{
    const auto& [rsName, rsGuess, rsMinimum, rsMaximum, rsDelta, rsRunName] = rFields.mTexts;
    if (rsName.IsEmpty())
        return kMissingName;
    if (rsRunName.IsEmpty())
        return "__$$Translatable$$_Missing optimization run name.";
    if (rsGuess.IsEmpty())
        return "__$$Translatable$$_Missing guess value.";
    if (rsMinimum.IsEmpty())
        return "__$$Translatable$$_Missing minimum value.";
    if (rsMaximum.IsEmpty())
        return "__$$Translatable$$_Missing maximum value.";
    rsText = rWriter.pBefore + rsName + "=opt" + rsRunName + "(" + rsGuess + "," + rsMinimum + "," +
             rsMaximum;
    gAppendIfAny(rsText, ",", rsDelta);
    if (rWriter.bAlwaysCloses || !rsDelta.IsEmpty())
        rsText += ")";
    return nullptr;
}
} // namespace

std::span<const std::size_t> gNeededFields(const TParameterFields& rFields)
{
    static constexpr std::size_t kGeneral[] = {1, 2};
    static constexpr std::size_t kMonteCarlo[] = {0, 1, 2};
    static constexpr std::size_t kWithSigma[] = {0, 1, 2, 3};
    static constexpr std::size_t kOptimization[] = {0, 5, 1, 2, 3};
    switch (rFields.mType) {
    case EParameterType::General:
        break;
    case EParameterType::MonteCarlo:
        return DistributionOf(rFields).bSigma ? std::span<const std::size_t>(kWithSigma)
                                              : kMonteCarlo;
    case EParameterType::Optimization:
        return kOptimization;
    }
    return kGeneral;
}

const char* gDefineParameter(const TParameterFields& rFields, const TDefinitionWriter& rWriter,
                             CString& rsText)
{
    switch (rFields.mType) {
    case EParameterType::General:
        break;
    case EParameterType::MonteCarlo:
        return DefineMonteCarlo(rFields, rWriter, rsText);
    case EParameterType::Optimization:
        return DefineOptimization(rFields, rWriter, rsText);
    }
    return DefineGeneral(rFields, rWriter, rsText);
}

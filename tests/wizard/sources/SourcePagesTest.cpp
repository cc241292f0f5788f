// What holds for all twenty pages of sources.

#include "platform/ui/Dialog.h"
#include "platform/ui/RuntimeClass.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/WizardPages.h"

#include <cxxabi.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace
{
/// The names of the page classes, each with its twin: what is behind "CCurrentSource" and
/// "CVoltageSource".
const std::vector<std::string> kKinds{"BitPage",
                                      "BusPage",
                                      "ConstantPage",
                                      "CurrentControlledPage",
                                      "ExponentialPage",
                                      "FMPage",
                                      "PiecewiseLinearPage",
                                      "PulsePage",
                                      "SinusoidalPage",
                                      "VoltageControlledPage"};

std::vector<std::string> Classes()
{
    std::vector<std::string> classes;
    for (const char* const pTwin : {"CCurrentSource", "CVoltageSource"})
        for (const std::string& rsKind : kKinds)
            classes.push_back(pTwin + rsKind);
    return classes;
}

/// An object of this class, without a window.
std::unique_ptr<CObject> PageOf(const std::string& rsClass)
{
    return CRuntimeClass::FromName(rsClass)->CreateObject();
}

TEST(SourcePages, AreThoseOfTheTree)
{
    std::vector<std::string> classes;
    for (const TTreeRow& rRow : gWizardTree())
        if (!rRow.bCategory && rRow.pClass &&
            rRow.pClass->GetName().find("Source") != std::string_view::npos)
            classes.emplace_back(rRow.pClass->GetName());
    EXPECT_EQ(classes, Classes());
}

TEST(SourcePages, DeriveDirectlyFromTheCommandPage)
{
    for (const std::string& rsClass : Classes()) {
        const auto pPage = PageOf(rsClass);
        const CObject& rPage = *pPage;
        const auto* const pType =
            dynamic_cast<const abi::__si_class_type_info*>(&typeid(rPage)); // of one base alone
        ASSERT_NE(pType, nullptr) << rsClass;
        EXPECT_TRUE(*pType->__base_type == typeid(CCommandPage)) << rsClass;
    }
}

TEST(SourcePages, ShowAndEnableEverythingButForTheControlledOnes)
{
    for (const std::string& rsClass : Classes()) {
        if (rsClass.find("Controlled") != std::string::npos)
            continue;
        const auto pPage = PageOf(rsClass);
        for (const TControlRow& rRow : dynamic_cast<CDialog&>(*pPage).GetTemplate().rows) {
            EXPECT_EQ(rRow.nFlags & (kHidden | kDisabled), 0U) << rsClass << ' ' << rRow.pKey;
            EXPECT_EQ(rRow.nLayers, 0U) << rsClass << ' ' << rRow.pKey;
        }
    }
}

/// The fields of a page by key and kind, in their order.
std::vector<std::string> FieldsOf(const std::string& rsClass)
{
    const auto pPage = PageOf(rsClass);
    std::vector<std::string> fields;
    for (const TControlRow& rRow : dynamic_cast<CDialog&>(*pPage).GetTemplate().rows)
        if (rRow.kind != EControl::Group)
            fields.push_back(rRow.pKey + (' ' + std::string(gControlName(rRow.kind))));
    return fields;
}

TEST(SourcePages, OfTwinsHaveTheSameFieldsInTheSameOrder)
{
    for (const std::string& rsKind : kKinds)
        EXPECT_EQ(FieldsOf("CCurrentSource" + rsKind), FieldsOf("CVoltageSource" + rsKind));
}
} // namespace

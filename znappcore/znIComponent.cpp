#include "znappcore/znIComponent.h"

znIComponent::~znIComponent() = default;

void znIComponent::update(s32) {}
void znIComponent::render() {}
void znIComponent::posChangeHandle() {}
void znIComponent::matrixApply() {}
void znIComponent::mySave(std::string&) {}
void znIComponent::myLoad(std::string&) {}
void znIComponent::myPostLoad() {}
void znIComponent::initialiseFromVariableTableDo(const znCVariableTable&) {}

#include "bridge/listener.h"

namespace vrx::bridge
{

Listener::~Listener() = default;

void Listener::onHead(const MessageHead& /*head*/)
{
}

void Listener::onProgress(const ExcProgress& /*progress*/)
{
}

void Listener::onMessage(const mp::wstring& /*text*/)
{
}

void Listener::onLog(const mp::wstring& /*text*/)
{
}

void Listener::onStage(ExcStageFinished::EStage /*stage*/)
{
}

void Listener::onObject(const std::shared_ptr<IExchangeObject>& /*object*/)
{
}

bool Listener::wants(const IExchangeObject& /*object*/)
{
    return true;
}

} // namespace vrx::bridge

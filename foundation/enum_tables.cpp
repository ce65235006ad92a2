// Every row of the request catalogue and the operation events. The ids come
// from the order of construction (automatic ids continue the counter, an
// attribute holding a command consumes one), so all of them stand in this
// one translation unit, in this order. Description texts are GBK bytes; the
// trailing comments give their reading.
#include "foundation/advanced_enum.h"

namespace {

using AttributeEntry = AdvancedIntEnumType::AttributeEntry;

AttributeEntry Describe(const char* gbkText)
{
    return {kDescriptionAttributeKey, std::make_shared<Description>(gbkText)};
}

// Copies the command, which consumes one automatic id (see AnyBaseCmdType).
AttributeEntry RunsCommand(const AnyBaseCmd& command)
{
    return {kAnyBaseCmdTypeAttributeKey, std::make_shared<AnyBaseCmdType>(command)};
}

AttributeEntry Path(const char* interfacePath)
{
    return {kInterfaceDescriptionTypeKey, std::make_shared<InterfaceDescriptionType>(interfacePath)};
}

AttributeEntry LogsAs(const UpLogType& logRow)
{
    return {kBaseUplogTypeKey, std::make_shared<BaseUplogType>(&logRow)};
}

// The OperateEventAttribute of one event, written as a phrase:
// Event(text, command, page).After(openingEvent).Opens(targetPage, subPage).
class Event
{
public:
    Event(const char* gbkDescription, const AnyBaseCmd& eventCommand, const char* eventPage = "")
        : description(gbkDescription), command(&eventCommand), page(eventPage)
    {
    }

    Event& After(const OperateBasicEventType& openingEvent)
    {
        linkedEvent = &openingEvent;
        return *this;
    }

    Event& Opens(const char* openedPage, const char* openedSubPage)
    {
        targetPage = openedPage;
        subPage = openedSubPage;
        return *this;
    }

    operator AttributeEntry() const
    {
        return {kOperateEventAttributeKey, std::make_shared<OperateEventAttribute>(
                                               description, command, page, linkedEvent, subPage, targetPage)};
    }

private:
    const char* description;
    const AnyBaseCmd* command;
    const char* page;
    const AdvancedIntEnumType* linkedEvent = nullptr;
    const char* subPage = "";
    const char* targetPage = "";
};

} // namespace

// clang-format off

// AnyBaseCmd: command codes. Every id is given; the last two are out of
// numeric order, and repeated texts are different commands.
const AnyBaseCmd kAnyBaseCmd4100(4100, {Describe("\xcd\xbc\xbf\xe2\xc6\xe4\xcb\xfb\xb2\xd9\xd7\xf7")}); // 图库其他操作
const AnyBaseCmd kAnyBaseCmd2114(2114, {Describe("\xcd\xbc\xbf\xe2\xb2\xd9\xd7\xf7")}); // 图库操作
const AnyBaseCmd kAnyBaseCmd2116(2116, {Describe("\xcd\xbc\xbf\xe2\xb2\xd9\xd7\xf7")}); // 图库操作
const AnyBaseCmd kAnyBaseCmd10203(10203, {Describe("pc\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7")}); // pc客户端操作
const AnyBaseCmd kAnyBaseCmd10301(10301, {Describe("\xd3\xc3\xbb\xa7\xb7\xb4\xc0\xa1")}); // 用户反馈
const AnyBaseCmd kAnyBaseCmd10401(10401, {Describe("\xcf\xc2\xd4\xd8\xb9\xdc\xc0\xed")}); // 下载管理
const AnyBaseCmd kAnyBaseCmd10501(10501, {Describe("\xcf\xc2\xd4\xd8\xb9\xdc\xc0\xed")}); // 下载管理
const AnyBaseCmd kAnyBaseCmd10601(10601, {Describe("\xc9\xe8\xd6\xc3")}); // 设置
const AnyBaseCmd kAnyBaseCmd10701(10701, {Describe("\xc1\xaa\xcf\xb5\xc8\xcb")}); // 联系人
const AnyBaseCmd kAnyBaseCmd10901(10901, {Describe("\xb1\xb8\xcd\xfc\xc2\xbc")}); // 备忘录
const AnyBaseCmd kAnyBaseCmd11001(11001, {Describe("\xc2\xbc\xd2\xf4")}); // 录音
const AnyBaseCmd kAnyBaseCmd11101(11101, {Describe("\xd4\xc6\xc5\xcc")}); // 云盘
const AnyBaseCmd kAnyBaseCmd11201(11201, {Describe("\xb2\xe9\xd5\xd2\xca\xd6\xbb\xfa")}); // 查找手机
const AnyBaseCmd kAnyBaseCmd11301(11301, {Describe("\xb9\xd8\xd3\xda")}); // 关于
const AnyBaseCmd kAnyBaseCmd11401(11401, {Describe("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed")}); // 空间管理
const AnyBaseCmd kAnyBaseCmd11501(11501, {Describe("\xc9\xfd\xbc\xb6\xb0\xb2\xd7\xb0")}); // 升级安装
const AnyBaseCmd kAnyBaseCmd11601(11601, {Describe("\xbc\xd2\xcd\xa5\xb9\xb2\xcf\xed")}); // 家庭共享
const AnyBaseCmd kAnyBaseCmd12001(12001, {Describe("\xd4\xf3\xdc\xbd\xc0\xad\xd4\xc6\xc5\xcc\xd2\xfd\xb5\xbc\xd2\xb3")}); // 泽芙拉云盘引导页
const AnyBaseCmd kAnyBaseCmd12004(12004, {Describe("\xd6\xa7\xb8\xb6")}); // 支付
const AnyBaseCmd kAnyBaseCmd12003(12003, {Describe("\xc6\xe4\xcb\xfc")}); // 其它

// UpLogType: log codes. They continue the counter from the last command; a
// row with a command consumes two ids (see AnyBaseCmdType), so only the ids
// that break that chain are written.
const UpLogType kUpLogType12005({Describe("\xc9\xe8\xd6\xc3\xd6\xd0\xbf\xaa\xc6\xf4"), RunsCommand(kAnyBaseCmd10601)}); // 设置中开启
const UpLogType kUpLogType12007({Describe("\xbd\xf8\xb3\xcc\xbc\xe4\xcd\xa8\xd1\xb6"), RunsCommand(kAnyBaseCmd12003)}); // 进程间通讯
const UpLogType kUpLogType12009({Describe("\xc8\xa1\xcf\xfb\xb6\xa9\xd4\xc4"), RunsCommand(kAnyBaseCmd12003)}); // 取消订阅
const UpLogType kUpLogTypeMinus2(-2);
const UpLogType kUpLogTypeMinus1({Describe("\xce\xde\xb2\xd9\xd7\xf7")}); // 无操作
const UpLogType kUpLogType0({Describe("\xc8\xce\xce\xf1\xcd\xea\xb3\xc9")}); // 任务完成
const UpLogType kUpLogType2({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xd3\xc3\xbb\xa7\xca\xb9\xd3\xc3\xb5\xe7\xc4\xd4\xb5\xc4\xb0\xe6\xb1\xbe\xd0\xf2\xc1\xd0\xba\xc5"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端用户使用电脑的版本序列号
const UpLogType kUpLogType4({Describe("PC\xd7\xa2\xcf\xfa"), RunsCommand(kAnyBaseCmd10203)}); // PC注销
const UpLogType kUpLogType6({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7\xd4\xdd\xcd\xa3"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端操作暂停
const UpLogType kUpLogType8({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7\xc8\xa1\xcf\xfb"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端操作取消
const UpLogType kUpLogType10({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7\xbc\xcc\xd0\xf8"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端操作继续
const UpLogType kUpLogType12({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7\xcf\xc2\xd4\xd8\xc8\xab\xb2\xbf\xc8\xa1\xcf\xfb"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端操作下载全部取消
const UpLogType kUpLogType14({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7\xc9\xcf\xb4\xab\xc8\xab\xb2\xbf\xc8\xa1\xcf\xfb"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端操作上传全部取消
const UpLogType kUpLogType16({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7\xc8\xab\xb2\xbf\xd4\xdd\xcd\xa3"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端操作全部暂停
const UpLogType kUpLogType18({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb2\xd9\xd7\xf7\xc8\xab\xb2\xbf\xbc\xcc\xd0\xf8"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端操作全部继续
const UpLogType kUpLogType20({Describe("PC\xbf\xcd\xbb\xa7\xb6\xcb\xb5\xf7\xd5\xfb\xb5\xbd\xcf\xc2\xd4\xd8\xc4\xbf\xc2\xbc\xb2\xd9\xd7\xf7"), RunsCommand(kAnyBaseCmd10203)}); // PC客户端调整到下载目录操作
const UpLogType kUpLogType22({Describe("\xc9\xcf\xcf\xdf\xb1\xe4\xc0\xeb\xcf\xdf\xd7\xb4\xcc\xac\xb1\xe4\xbb\xaf\xa3\xa8\xb8\xd5\xb5\xc7\xc2\xbd\xb3\xc9\xb9\xa6\xb2\xbb\xd2\xaa\xa3\xa9"), RunsCommand(kAnyBaseCmd10203)}); // 上线变离线状态变化（刚登陆成功不要）
const UpLogType kUpLogType24({Describe("\xc0\xeb\xcf\xdf\xb1\xe4\xc9\xcf\xcf\xdf\xd7\xb4\xcc\xac\xb1\xe4\xbb\xaf"), RunsCommand(kAnyBaseCmd10203)}); // 离线变上线状态变化
const UpLogType kUpLogType26({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xcd\xcb\xb3\xf6"), RunsCommand(kAnyBaseCmd10203)}); // 客户端退出
const UpLogType kUpLogType28({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xd7\xee\xd0\xa1\xbb\xaf"), RunsCommand(kAnyBaseCmd10203)}); // 客户端最小化
const UpLogType kUpLogType30({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xbb\xb9\xd4\xad"), RunsCommand(kAnyBaseCmd10203)}); // 客户端还原
const UpLogType kUpLogType32({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xbf\xcd\xbb\xa7\xb6\xcb\xb3\xf5\xca\xbc\xbb\xaf"), RunsCommand(kAnyBaseCmd10203)}); // 客户端客户端初始化
const UpLogType kUpLogType34({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xd0\xdd\xc3\xdf"), RunsCommand(kAnyBaseCmd10203)}); // 客户端休眠
const UpLogType kUpLogType36({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xbb\xd6\xb8\xb4"), RunsCommand(kAnyBaseCmd10203)}); // 客户端恢复
const UpLogType kUpLogType38({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xe4\xaf\xc0\xc0\xc6\xf7\xb5\xd8\xd6\xb7\xb1\xe4\xb8\xfc"), RunsCommand(kAnyBaseCmd10203)}); // 客户端浏览器地址变更
const UpLogType kUpLogType40({Describe("\xc4\xa3\xbf\xe9\xc7\xd0\xbb\xbb"), RunsCommand(kAnyBaseCmd10203)}); // 模块切换
const UpLogType kUpLogType42({Describe("\xb4\xab\xca\xe4\xb9\xdc\xc0\xed"), RunsCommand(kAnyBaseCmd10203)}); // 传输管理
const UpLogType kUpLogType44({Describe("\xc9\xe8\xd6\xc3"), RunsCommand(kAnyBaseCmd10203)}); // 设置
const UpLogType kUpLogType46({Describe("\xbf\xaa\xbb\xfa\xd7\xd4\xc6\xf4"), RunsCommand(kAnyBaseCmd10203)}); // 开机自启
const UpLogType kUpLogType48({Describe("\xd7\xd4\xb6\xaf\xbc\xec\xb2\xe2\xb8\xfc\xd0\xc2"), RunsCommand(kAnyBaseCmd10203)}); // 自动检测更新
const UpLogType kUpLogType50({Describe("\xbc\xec\xb2\xe2\xb8\xfc\xd0\xc2"), RunsCommand(kAnyBaseCmd10203)}); // 检测更新
const UpLogType kUpLogType52({Describe("\xbc\xd3\xc8\xeb\xd3\xc3\xbb\xa7\xcc\xe5\xd1\xe9\xbc\xc6\xbb\xae"), RunsCommand(kAnyBaseCmd10203)}); // 加入用户体验计划
const UpLogType kUpLogType54({Describe("\xcd\xac\xca\xb1\xc9\xcf\xb4\xab\xc8\xce\xce\xf1\xca\xfd\xd0\xde\xb8\xc4"), RunsCommand(kAnyBaseCmd10203)}); // 同时上传任务数修改
const UpLogType kUpLogType56({Describe("\xcd\xac\xca\xb1\xcf\xc2\xd4\xd8\xc8\xce\xce\xf1\xca\xfd\xd0\xde\xb8\xc4"), RunsCommand(kAnyBaseCmd10203)}); // 同时下载任务数修改
const UpLogType kUpLogType58({Describe("\xd0\xde\xb8\xc4\xbb\xba\xb4\xe6\xc2\xb7\xbe\xb6"), RunsCommand(kAnyBaseCmd10203)}); // 修改缓存路径
const UpLogType kUpLogType60({Describe("\xce\xd2\xb5\xc4\xd4\xf3\xdc\xbd\xc0\xad\xd5\xcb\xba\xc5"), RunsCommand(kAnyBaseCmd10203)}); // 我的泽芙拉账号
const UpLogType kUpLogType62({Describe("\xc7\xb0\xcd\xf9\xd4\xc6\xbf\xd5\xbc\xe4\xcd\xf8\xd5\xbe"), RunsCommand(kAnyBaseCmd10203)}); // 前往云空间网站
const UpLogType kUpLogType64({Describe("\xb9\xd8\xd3\xda"), RunsCommand(kAnyBaseCmd10203)}); // 关于
const UpLogType kUpLogType66({Describe("\xd4\xda\xcf\xdf\xb0\xef\xd6\xfa"), RunsCommand(kAnyBaseCmd10203)}); // 在线帮助
const UpLogType kUpLogType68({Describe("\xce\xca\xcc\xe2\xb7\xb4\xc0\xa1"), RunsCommand(kAnyBaseCmd10203)}); // 问题反馈
const UpLogType kUpLogType70({Describe("\xd0\xad\xd2\xe9\xc7\xa9\xca\xf0"), RunsCommand(kAnyBaseCmd10203)}); // 协议签署
const UpLogType kUpLogType72({Describe("PC\xb9\xdc\xbc\xd2\xb5\xc7\xc2\xbc"), RunsCommand(kAnyBaseCmd10203)}); // PC管家登录
const UpLogType kUpLogType74({Describe("\xcd\xbc\xbf\xe2\xc9\xcf\xb4\xab"), RunsCommand(kAnyBaseCmd2116)}); // 图库上传
const UpLogType kUpLogType76({Describe("\xcd\xbc\xbf\xe2\xca\xb1\xbf\xcc\xb1\xed"), RunsCommand(kAnyBaseCmd2116)}); // 图库时刻表
const UpLogType kUpLogType78({Describe("\xc5\xfa\xc1\xbf\xd1\xa1\xd4\xf1\xc8\xd5\xc6\xda\xb7\xd6\xd7\xe9\xcd\xbc\xc6\xac"), RunsCommand(kAnyBaseCmd2116)}); // 批量选择日期分组图片
const UpLogType kUpLogType80({Describe("\xcd\xbc\xbf\xe2\xcf\xea\xc7\xe9\xc8\xab\xc6\xc1"), RunsCommand(kAnyBaseCmd2116)}); // 图库详情全屏
const UpLogType kUpLogType82({Describe("\xcd\xbc\xbf\xe2\xcf\xc2\xd4\xd8"), RunsCommand(kAnyBaseCmd2116)}); // 图库下载
const UpLogType kUpLogType84({Describe("\xcd\xbc\xbf\xe2\xcf\xc2\xd4\xd8\xce\xc4\xbc\xfe\xd0\xc5\xcf\xa2\xbb\xf1\xc8\xa1"), RunsCommand(kAnyBaseCmd2116)}); // 图库下载文件信息获取
const UpLogType kUpLogType3115(3115, {Describe("\xc1\xaa\xcf\xb5\xc8\xcb\xb5\xbc\xb3\xf6")}); // 联系人导出
const UpLogType kUpLogType4100(4100, {Describe("\xd4\xc6\xcf\xe0\xb2\xe1\xc6\xe4\xcb\xfb\xb2\xd9\xd7\xf7")}); // 云相册其他操作
const UpLogType kUpLogType4101({Describe("\xb2\xe9\xd1\xaf\xcf\xe0\xb2\xe1\xbc\xb0\xce\xc4\xbc\xfe")}); // 查询相册及文件
const UpLogType kUpLogType4102(4102, {Describe("\xc9\xbe\xb3\xfd\xcf\xe0\xb2\xe1\xbc\xb0\xce\xc4\xbc\xfe"), RunsCommand(kAnyBaseCmd2114)}); // 删除相册及文件
const UpLogType kUpLogType4103({Describe("\xc7\xe5\xbf\xd5\xcf\xe0\xb2\xe1\xbc\xb0\xce\xc4\xbc\xfe")}); // 清空相册及文件
const UpLogType kUpLogType4105(4105, {Describe("\xb2\xe9\xd1\xaf\xbb\xd8\xca\xd5\xd5\xbe")}); // 查询回收站
const UpLogType kUpLogType4106({Describe("\xc9\xbe\xb3\xfd\xbb\xd8\xca\xd5\xd5\xbe")}); // 删除回收站
const UpLogType kUpLogType4107({Describe("\xc7\xe5\xbf\xd5\xbb\xd8\xca\xd5\xd5\xbe")}); // 清空回收站
const UpLogType kUpLogType4108({Describe("\xbb\xd8\xca\xd5\xd5\xbe\xbb\xd6\xb8\xb4")}); // 回收站恢复
const UpLogType kUpLogType4113(4113, {Describe("\xca\xd3\xc6\xb5\xb2\xa5\xb7\xc5")}); // 视频播放
const UpLogType kUpLogType4114({Describe("\xca\xd3\xc6\xb5\xd4\xdd\xcd\xa3")}); // 视频暂停
const UpLogType kUpLogType4115({Describe("\xca\xd3\xc6\xb5\xbb\xd6\xb8\xb4")}); // 视频恢复
const UpLogType kUpLogType4116({Describe("\xca\xd3\xc6\xb5\xbd\xe1\xca\xf8")}); // 视频结束
const UpLogType kUpLogType4118({Describe("\xcd\xbc\xbf\xe2\xc8\xd5\xc6\xda\xb7\xd6\xd7\xe9\xd1\xa1\xd4\xf1"), RunsCommand(kAnyBaseCmd4100)}); // 图库日期分组选择
const UpLogType kUpLogType4120({Describe("\xcd\xbc\xbf\xe2\xc8\xd5\xc6\xda\xb7\xd6\xd7\xe9\xd1\xa1\xd4\xf1"), RunsCommand(kAnyBaseCmd4100)}); // 图库日期分组选择
const UpLogType kUpLogType4122({Describe("\xc8\xa1\xcf\xfb\xd1\xa1\xd6\xd0"), RunsCommand(kAnyBaseCmd4100)}); // 取消选中
const UpLogType kUpLogType4124({Describe("\xc8\xab\xb2\xbf\xcf\xc2\xd4\xd8"), RunsCommand(kAnyBaseCmd2116)}); // 全部下载
const UpLogType kUpLogType4126({Describe("\xcd\xbc\xc6\xac\xd2\xc6\xb6\xaf"), RunsCommand(kAnyBaseCmd4100)}); // 图片移动
const UpLogType kUpLogType4128({Describe("\xc8\xd5\xc6\xda\xb7\xd6\xd7\xe9\xd1\xa1\xd4\xf1"), RunsCommand(kAnyBaseCmd4100)}); // 日期分组选择
const UpLogType kUpLogType4130({Describe("\xc3\xbf\xd0\xd0\xd5\xb9\xca\xbe\xb8\xf6\xca\xfd\xb5\xf7\xd5\xfb"), RunsCommand(kAnyBaseCmd4100)}); // 每行展示个数调整
const UpLogType kUpLogType4132({Describe("\xcd\xbc\xc6\xac\xca\xd5\xb2\xd8"), RunsCommand(kAnyBaseCmd4100)}); // 图片收藏
const UpLogType kUpLogType4134({Describe("\xcd\xbc\xc6\xac\xc8\xab\xc6\xc1"), RunsCommand(kAnyBaseCmd4100)}); // 图片全屏
const UpLogType kUpLogType4136({Describe("\xcd\xbc\xc6\xac\xbb\xb9\xd4\xad"), RunsCommand(kAnyBaseCmd4100)}); // 图片还原
const UpLogType kUpLogType4138({Describe("\xcd\xbc\xc6\xac\xca\xf4\xd0\xd4"), RunsCommand(kAnyBaseCmd4100)}); // 图片属性
const UpLogType kUpLogType4140({Describe("\xcd\xbc\xc6\xac\xd0\xfd\xd7\xaa"), RunsCommand(kAnyBaseCmd4100)}); // 图片旋转
const UpLogType kUpLogType4142({Describe("\xc1\xac\xc5\xc4\xcf\xea\xc7\xe9\xd5\xb9\xca\xbe"), RunsCommand(kAnyBaseCmd4100)}); // 连拍详情展示
const UpLogType kUpLogType4144({Describe("\xcd\xbc\xc6\xac\xc7\xd0\xbb\xbb"), RunsCommand(kAnyBaseCmd4100)}); // 图片切换
const UpLogType kUpLogType4146({Describe("\xd0\xc2\xbd\xa8\xcf\xe0\xb2\xe1"), RunsCommand(kAnyBaseCmd4100)}); // 新建相册
const UpLogType kUpLogType4148({Describe("\xcf\xe0\xb2\xe1\xd6\xd8\xc3\xfc\xc3\xfb"), RunsCommand(kAnyBaseCmd4100)}); // 相册重命名
const UpLogType kUpLogType4150({Describe("\xcf\xe0\xb2\xe1\xc9\xbe\xb3\xfd"), RunsCommand(kAnyBaseCmd2114)}); // 相册删除
const UpLogType kUpLogType4152({Describe("\xcf\xe0\xb2\xe1\xcf\xea\xc7\xe9\xb2\xe9\xbf\xb4"), RunsCommand(kAnyBaseCmd2114)}); // 相册详情查看
const UpLogType kUpLogType4154({Describe("\xcf\xe0\xb2\xe1\xcf\xea\xc7\xe9\xb7\xb5\xbb\xd8"), RunsCommand(kAnyBaseCmd2114)}); // 相册详情返回
const UpLogType kUpLogType4156({Describe("\xcd\xbc\xc6\xac\xd4\xf6\xc1\xbf\xb8\xfc\xd0\xc2"), RunsCommand(kAnyBaseCmd2116)}); // 图片增量更新
const UpLogType kUpLogType4158({Describe("\xcd\xbc\xc6\xac\xc8\xab\xc1\xbf\xb8\xfc\xd0\xc2"), RunsCommand(kAnyBaseCmd2116)}); // 图片全量更新
const UpLogType kUpLogType4160({Describe("\xcd\xbc\xc6\xac\xb7\xfe\xce\xf1\xc6\xf7\xd0\xc5\xcf\xa2"), RunsCommand(kAnyBaseCmd2116)}); // 图片服务器信息
const UpLogType kUpLogType5001(5001, {Describe("\xd4\xc6\xc5\xcc\xc9\xcf\xb4\xab")}); // 云盘上传
const UpLogType kUpLogType5002({Describe("\xd4\xc6\xc5\xcc\xcf\xc2\xd4\xd8")}); // 云盘下载
const UpLogType kUpLogType5003({Describe("\xd4\xc6\xc5\xcc\xb2\xe9\xd1\xaf\xce\xc4\xbc\xfe")}); // 云盘查询文件
const UpLogType kUpLogType5004({Describe("\xd4\xc6\xc5\xcc\xd0\xc2\xbd\xa8\xce\xc4\xbc\xfe\xbc\xd0")}); // 云盘新建文件夹
const UpLogType kUpLogType9104(9104, {Describe("\xc2\xbc\xd2\xf4\xb2\xa5\xb7\xc5")}); // 录音播放
const UpLogType kUpLogType9107(9107, {Describe("\xc2\xbc\xd2\xf4\xbd\xe1\xca\xf8")}); // 录音结束
const UpLogType kUpLogType9105(9105, {Describe("\xc2\xbc\xd2\xf4\xd4\xdd\xcd\xa3")}); // 录音暂停
const UpLogType kUpLogType9106({Describe("\xc2\xbc\xd2\xf4\xbb\xd6\xb8\xb4")}); // 录音恢复
const UpLogType kUpLogType9103(9103, {Describe("\xc2\xbc\xd2\xf4\xcf\xc2\xd4\xd8")}); // 录音下载
const UpLogType kUpLogType10002(10002, {Describe("pc\xbf\xcd\xbb\xa7\xb6\xcb\xb5\xc7\xb3\xf6")}); // pc客户端登出
const UpLogType kUpLogType10004(10004, {Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xbf\xd5\xbc\xe4\xb2\xe9\xd1\xaf")}); // 客户端空间查询
const UpLogType kUpLogType10005({Describe("\xcb\xa2\xd0\xc2" "AccessToken")}); // 刷新AccessToken
const UpLogType kUpLogType10006({Describe("\xb2\xe9\xd1\xaf\xc5\xe4\xd6\xc3\xcf\xee")}); // 查询配置项
const UpLogType kUpLogType10007({Describe("\xbc\xf8\xc8\xa8\xc2\xeb\xbb\xf1\xc8\xa1" "AT")}); // 鉴权码获取AT
const UpLogType kUpLogType10201(10201, {Describe("\xb0\xb2\xd7\xb0")}); // 安装
const UpLogType kUpLogType10202({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xb0\xe6\xb1\xbe\xc9\xfd\xbc\xb6")}); // 客户端版本升级
const UpLogType kUpLogType10204(10204, {Describe("\xc9\xe8\xb1\xb8\xd7\xa2\xb2\xe1")}); // 设备注册
const UpLogType kUpLogType10205({Describe("\xc9\xe8\xb1\xb8\xc8\xa1\xcf\xfb\xd7\xa2\xb2\xe1")}); // 设备取消注册
const UpLogType kUpLogType10206({Describe("\xbb\xf1\xc8\xa1\xc9\xe8\xb1\xb8\xc1\xd0\xb1\xed")}); // 获取设备列表
const UpLogType kUpLogType10207({Describe("\xbb\xf1\xc8\xa1\xd7\xee\xba\xf3\xd2\xbb\xb4\xce\xb2\xd9\xd7\xf7\xbc\xc7\xc2\xbc")}); // 获取最后一次操作记录
const UpLogType kUpLogType10208({Describe("\xd3\xc3\xbb\xa7\xd7\xa2\xb2\xe1\xd0\xc5\xcf\xa2\xb2\xe9\xd1\xaf")}); // 用户注册信息查询
const UpLogType kUpLogType10209({Describe("\xcf\xb5\xcd\xb3\xc5\xe4\xd6\xc3\xbd\xd3\xbf\xda")}); // 系统配置接口
const UpLogType kUpLogType10210({Describe("\xc9\xcf\xb1\xa8\xc9\xe8\xb1\xb8\xc4\xa3\xbf\xe9\xbf\xaa\xb9\xd8")}); // 上报设备模块开关
const UpLogType kUpLogType10211({Describe("\xb8\xfc\xb8\xc4\xd3\xc3\xbb\xa7\xd7\xb4\xcc\xac")}); // 更改用户状态
const UpLogType kUpLogType20120(20120, {Describe("BI\xc8\xd5\xd6\xbe\xc9\xcf\xb4\xab")}); // BI日志上传
const UpLogType kUpLogType30101(30101, {Describe("\xcd\xbc\xbf\xe2\xcd\xac\xb2\xbd\xd7\xb4\xcc\xac")}); // 图库同步状态
const UpLogType kUpLogType30102({Describe("\xcd\xbc\xbf\xe2\xcd\xac\xb2\xbd\xb7\xfe\xce\xf1\xc6\xf7\xb4\xed\xce\xf3")}); // 图库同步服务器错误
const UpLogType kUpLogType30103({Describe("\xcd\xbc\xbf\xe2\xcd\xac\xb2\xbd\xb1\xbe\xb5\xd8\xb2\xd9\xd7\xf7")}); // 图库同步本地操作
const UpLogType kUpLogType40001(40001, {Describe("Push\xb5\xc4\xcf\xe0\xb9\xd8\xb2\xd9\xd7\xf7")}); // Push的相关操作
const UpLogType kUpLogType30200(30200, {Describe("\xbc\xf2\xb1\xa8\xb2\xd9\xd7\xf7")}); // 简报操作
const UpLogType kUpLogType30201({Describe("\xbb\xf1\xc8\xa1\xd4\xc6\xb6\xcb\xbc\xf2\xb1\xa8")}); // 获取云端简报
const UpLogType kUpLogType30202({Describe("\xbc\xf2\xb1\xa8\xb7\xfe\xce\xf1\xc6\xf7\xb4\xed\xce\xf3")}); // 简报服务器错误
const UpLogType kUpLogType30203({Describe("\xbc\xf2\xb1\xa8\xb1\xbe\xb5\xd8\xb2\xd9\xd7\xf7\xb4\xed\xce\xf3")}); // 简报本地操作错误
const UpLogType kUpLogType30204({Describe("\xbc\xf2\xb1\xa8\xbb\xf1\xc8\xa1\xcf\xea\xcf\xb8\xd0\xc5\xcf\xa2")}); // 简报获取详细信息
const UpLogType kUpLogType30205({Describe("\xbb\xf1\xc8\xa1\xb7\xfe\xce\xf1\xc6\xf7\xca\xb1\xbc\xe4")}); // 获取服务器时间
const UpLogType kUpLogType30207({Describe("\xbf\xcd\xbb\xa7\xb6\xcb\xb0\xb2\xc8\xab\xbc\xec\xb2\xe9"), RunsCommand(kAnyBaseCmd10203)}); // 客户端安全检查
const UpLogType kUpLogType50001(50001, {Describe("\xd4\xa4\xc2\xf1OM\xd3\xeb\xd7\xb4\xcc\xac\xc2\xeb\xc6\xa5\xc5\xe4")}); // 预埋OM与状态码匹配
const UpLogType kUpLogType60000(60000, {Describe("\xb3\xf5\xca\xbc\xbb\xaf" "Drive\xbc\xd3\xbd\xe2\xc3\xdc\xb5\xc4\xc3\xdc\xd4\xbf")}); // 初始化Drive加解密的密钥
const UpLogType kUpLogType60001({Describe("\xb3\xf5\xca\xbc\xbb\xaf" "Drive\xbb\xf1\xc8\xa1\xc9\xcf\xb4\xab\xce\xc4\xbc\xfe\xb7\xd6\xc6\xac\xd0\xc5\xcf\xa2")}); // 初始化Drive获取上传文件分片信息
const UpLogType kUpLogType60002({Describe("\xbb\xf1\xc8\xa1\xc9\xcf\xb4\xab\xb7\xd6\xc6\xac\xce\xc4\xbc\xfe\xb5\xd8\xd6\xb7")}); // 获取上传分片文件地址
const UpLogType kUpLogType60003({Describe("Drive\xd4\xc6\xb6\xcb\xb4\xb4\xbd\xa8\xce\xc4\xbc\xfe\xbc\xd0")}); // Drive云端创建文件夹
const UpLogType kUpLogType60004({Describe("\xb8\xf9\xbe\xdd" "FileId\xbb\xf1\xc8\xa1\xce\xc4\xbc\xfe\xbc\xd0\xc4\xda\xb5\xc4\xcb\xf9\xd3\xd0\xce\xc4\xbc\xfe\xd0\xc5\xcf\xa2")}); // 根据FileId获取文件夹内的所有文件信息
const UpLogType kUpLogType60005({Describe("\xb8\xf9\xbe\xdd" "FileId\xbb\xf1\xc8\xa1\xb5\xa5\xb8\xf6\xce\xc4\xbc\xfe\xb5\xc4\xb2\xbf\xb7\xd6\xd0\xc5\xcf\xa2")}); // 根据FileId获取单个文件的部分信息
const UpLogType kUpLogType60006({Describe("\xb8\xf9\xbe\xdd" "FileId\xbb\xf1\xc8\xa1\xb5\xa5\xb8\xf6\xce\xc4\xbc\xfe\xb5\xc4\xb7\xd6\xc6\xac\xd0\xc5\xcf\xa2")}); // 根据FileId获取单个文件的分片信息
const UpLogType kUpLogType60007({Describe("\xbb\xf1\xc8\xa1\xb7\xd6\xc6\xac\xcf\xc2\xd4\xd8\xb5\xd8\xd6\xb7")}); // 获取分片下载地址
const UpLogType kUpLogType60008({Describe("\xbb\xf1\xc8\xa1\xc3\xdc\xd4\xbf\xb6\xd4\xcf\xf3")}); // 获取密钥对象
const UpLogType kUpLogType60009({Describe("Drive\xc9\xcf\xb4\xab\xcd\xea\xb3\xc9\xb1\xa8\xcb\xcd\xb7\xfe\xce\xf1\xb6\xcb\xd0\xc5\xcf\xa2")}); // Drive上传完成报送服务端信息
const UpLogType kUpLogType60010({Describe("Drive\xb7\xd6\xc6\xac\xc9\xcf\xb4\xab\xcd\xea\xb3\xc9\xb1\xa8\xcb\xcd\xb7\xfe\xce\xf1\xb6\xcb\xd4\xaa\xca\xfd\xbe\xdd\xd0\xc5\xcf\xa2")}); // Drive分片上传完成报送服务端元数据信息
const UpLogType kUpLogType60011({Describe("Drive\xcf\xc2\xd4\xd8\xc8\xce\xce\xf1\xcd\xea\xb3\xc9")}); // Drive下载任务完成
const UpLogType kUpLogType60012({Describe("Drive\xc9\xcf\xb4\xab\xc8\xce\xce\xf1\xcd\xea\xb3\xc9")}); // Drive上传任务完成
const UpLogType kUpLogType60014(60014, {Describe("Drive\xca\xfd\xbe\xdd\xc7\xd0\xb8\xee\xba\xf3\xc9\xfa\xb3\xc9" "FileId")}); // Drive数据切割后生成FileId
const UpLogType kUpLogType60015({Describe("Portal\xd2\xfd\xb5\xbcPC\xcf\xc2\xd4\xd8\xbb\xf1\xc8\xa1" "FileIds")}); // Portal引导PC下载获取FileIds
const UpLogType kUpLogType60016({Describe("\xcd\xbc\xbf\xe2\xb0\xe6\xb1\xbe\xbd\xd3\xbf\xda")}); // 图库版本接口
const UpLogType kUpLogType60017({Describe("\xbb\xf1\xc8\xa1\xce\xc4\xbc\xfe\xd4\xaa\xca\xfd\xbe\xdd\xd0\xc5\xcf\xa2")}); // 获取文件元数据信息
const UpLogType kUpLogType60018({Describe("\xc5\xfa\xc1\xbf\xbd\xd3\xbf\xda\xbb\xf1\xc8\xa1\xcf\xc2\xd4\xd8\xcb\xf5\xc2\xd4\xcd\xbc\xb5\xd8\xd6\xb7")}); // 批量接口获取下载缩略图地址
const UpLogType kUpLogType60019({Describe("\xbb\xf1\xc8\xa1LCD\xcd\xbc\xcf\xc2\xd4\xd8\xb5\xd8\xd6\xb7")}); // 获取LCD图下载地址
const UpLogType kUpLogType60020({Describe("\xca\xd3\xc6\xb5\xd4\xda\xcf\xdf\xb2\xa5\xb7\xc5\xcf\xc2\xd4\xd8\xb5\xd8\xd6\xb7")}); // 视频在线播放下载地址
const UpLogType kUpLogType60021({Describe("\xbb\xf1\xc8\xa1\xce\xc4\xbc\xfe\xcf\xc2\xd4\xd8\xd0\xc5\xcf\xa2")}); // 获取文件下载信息
const UpLogType kUpLogType60022({Describe("\xbb\xf1\xc8\xa1\xd4\xc6\xcf\xe0\xb2\xe1\xc3\xd8\xd4\xbf\xd0\xc5\xcf\xa2")}); // 获取云相册秘钥信息
const UpLogType kUpLogType60023({Describe("\xb8\xfc\xd0\xc2" "Drive\xd4\xc6\xb6\xcb" "Efek")}); // 更新Drive云端Efek
const UpLogType kUpLogType60024({Describe("\xb8\xfc\xd0\xc2" "CloudPhoto\xd4\xc6\xb6\xcb" "Efek")}); // 更新CloudPhoto云端Efek

// NspRequestType
const NspRequestType kNspRequestType0(0, {LogsAs(kUpLogType10004)});
const NspRequestType kNspRequestType1({LogsAs(kUpLogType5001)});
const NspRequestType kNspRequestType2({LogsAs(kUpLogType5004)});
const NspRequestType kNspRequestType3{}; // default-made: no attributes
const NspRequestType kNspRequestType4{}; // default-made: no attributes
const NspRequestType kNspRequestType5{}; // default-made: no attributes
const NspRequestType kNspRequestType6({LogsAs(kUpLogType5002)});

// CbsType
const CbsType kCbsType0(0, {Path("/CloudBackup/ClientServlet"), LogsAs(kUpLogType10004)});
const CbsType kCbsType1({Path("/CloudBackup/ClientServlet"), LogsAs(kUpLogType10004)});
const CbsType kCbsType2({Path("/CloudBackup/ClientServlet"), LogsAs(kUpLogType10004)});

// PimdsType
const PimdsType kPimdsType0(0, {Path("/Statistic/Contact"), LogsAs(kUpLogType10004)});
const PimdsType kPimdsType1({Path("/Statistic/Calendar"), LogsAs(kUpLogType10004)});
const PimdsType kPimdsType2({Path("/Statistic/Wlan"), LogsAs(kUpLogType10004)});
const PimdsType kPimdsType3({Path("/Statistic/Notepad"), LogsAs(kUpLogType10004)});
const PimdsType kPimdsType4({Path("/Statistic/Browser"), LogsAs(kUpLogType10004)});
const PimdsType kPimdsType5({Path("/recyclebin/query"), LogsAs(kUpLogType10004)});

// PimDataVerionType
const PimDataVerionType kPimDataVerionType0(0, {Path("/dataSync/v1/service/1000/about?fields=dataVersion,kinds,maxBatchNumber,status"), LogsAs(kUpLogType10004)});
const PimDataVerionType kPimDataVerionType1({Path("/dataSync/v1/service/1001/about?fields=dataVersion,kinds,maxBatchNumber,status"), LogsAs(kUpLogType10004)});
const PimDataVerionType kPimDataVerionType2({Path("/dataSync/v1/service/1002/about?fields=dataVersion,kinds,maxBatchNumber,status"), LogsAs(kUpLogType10004)});
const PimDataVerionType kPimDataVerionType3({Path("/dataSync/v1/service/1004/about?fields=dataVersion,kinds,maxBatchNumber,status"), LogsAs(kUpLogType10004)});
const PimDataVerionType kPimDataVerionType4({Path("/dataSync/v1/service/1005/about?fields=dataVersion,kinds,maxBatchNumber,status"), LogsAs(kUpLogType10004)});

// FamilyShareType
const FamilyShareType kFamilyShareType0(0, {Path("/rest.php"), LogsAs(kUpLogType10004)});
const FamilyShareType kFamilyShareType1({Path("/user/v1/quota/drive"), LogsAs(kUpLogType10004)});
const FamilyShareType kFamilyShareType2({Path("/rest.php"), LogsAs(kUpLogType10004)});

// CloudPhotoV2InterfaceType
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType0(0, {Path("/cloudPhoto/v1/about"), LogsAs(kUpLogType4160)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType1({Path("/cloudPhoto/v1/changes/getStartCursor"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType2({Path("/cloudPhoto/v1/changes"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType3({Path("/cloudPhoto/v1/albums"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType4({Path("/cloudPhoto/v1/lock"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType5({Path("/cloudPhoto/v1/lock"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType6({Path("/cloudPhoto/v1/media"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType7({Path("/cloudPhoto/v1/batch"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType8({Path("/cloudPhoto/v1/albums"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType9({Path("/cloudPhoto/v1/albums"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType10({Path("/cloudPhoto/v1/albums"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType11({Path("/cloudPhoto/v1/media"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType12({Path("/cloudPhoto/v1/media"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType13({Path("/cloudPhoto/v1/media"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType14({Path(""), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType15({Path(""), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType16({Path(""), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType17({Path("/cloudPhoto/v1/changes/subscribe"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType18({Path("/cloudPhoto/v1/channels/stop"), LogsAs(kUpLogType4101)});
const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType19({Path("/cloudPhoto/v1/changes/notify"), LogsAs(kUpLogType4101)});

// CloudPhotoInterfaceType
const CloudPhotoInterfaceType kCloudPhotoInterfaceType0(0, {Path("/JPJX/CloudPhotoRecycle"), LogsAs(kUpLogType30205)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType1({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType82)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType2({Path("/JPJX/CloudPhoto4Web"), LogsAs(kUpLogType84)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType3({Path("/JPJX/BaseAPI"), LogsAs(kUpLogType74)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType4({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType5({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4100)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType6({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4100)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType7({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4102)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType8({Path("/JPJX/CloudPhoto4Web"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType9({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType10({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4100)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType11({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType12({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType13({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType14({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType15({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType16({Path("/JPJX/BaseAPI"), LogsAs(kUpLogType10004)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType17({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType18({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType19({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType20({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType21({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType74)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType22({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType4102)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType23({Path("/JPJX/CloudPhotoRecycle"), LogsAs(kUpLogType4106)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType24({Path("/JPJX/CloudPhotoRecycle"), LogsAs(kUpLogType4107)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType25({Path("/JPJX/CloudPhotoRecycle"), LogsAs(kUpLogType4108)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType26({Path("/JPJX/CloudPhoto4Web"), LogsAs(kUpLogType4101)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType27({Path("/JPJX/CloudPhoto/querymodifyinfos"), LogsAs(kUpLogType30201)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType28({Path("/JPJX/CloudPhoto/cycle/querymodifyinfos"), LogsAs(kUpLogType30201)});
const CloudPhotoInterfaceType kCloudPhotoInterfaceType29({Path("/JPJX/CloudPhoto"), LogsAs(kUpLogType30204)});

// CloudPhotoRequestType
const CloudPhotoRequestType kCloudPhotoRequestType0(0, {Path("/cloudPhoto/v1/about"), LogsAs(kUpLogType60016)});
const CloudPhotoRequestType kCloudPhotoRequestType1({Path("/cloudPhoto/v1/media/{0}?fields=attachments,status"), LogsAs(kUpLogType60017)});
const CloudPhotoRequestType kCloudPhotoRequestType2({Path("/cloudPhoto/v1/media/{0}?fields=attachments,smallThumbnailDownloadLink,thumbnailDownloadLink&thumbnailInfo=true"), LogsAs(kUpLogType60019)});
const CloudPhotoRequestType kCloudPhotoRequestType3({Path("/cloudPhoto/v1/batch"), LogsAs(kUpLogType60018)});
const CloudPhotoRequestType kCloudPhotoRequestType4({Path("/cloudPhoto/v1/media/{0}?fields=signedDownloadLink"), LogsAs(kUpLogType60020)});
const CloudPhotoRequestType kCloudPhotoRequestType5({Path("/cloudPhoto/v1/media/{0}?fields=id,fileName,albumId,size"), LogsAs(kUpLogType60021)});
const CloudPhotoRequestType kCloudPhotoRequestType6({Path("/cloudPhoto/v1/media/{0}/assets/{1}/revisions/{2}"), LogsAs(kUpLogType60024)});

// DriveRequestType
const DriveRequestType kDriveRequestType0(0, {Path(""), LogsAs(kUpLogType60001)});
const DriveRequestType kDriveRequestType1({Path("/drive/v1/objects/{0}/obsAddress?"), LogsAs(kUpLogType60002)});
const DriveRequestType kDriveRequestType2({Path("/drive/v1/files"), LogsAs(kUpLogType60003)});
const DriveRequestType kDriveRequestType3({Path(""), LogsAs(kUpLogType60004)});
const DriveRequestType kDriveRequestType4({Path(""), LogsAs(kUpLogType60005)});
const DriveRequestType kDriveRequestType5({Path(""), LogsAs(kUpLogType60006)});
const DriveRequestType kDriveRequestType6({Path(""), LogsAs(kUpLogType60007)});
const DriveRequestType kDriveRequestType7({Path("/common/v1/keys/publicKey?tempKeyEncType=EC_256"), LogsAs(kUpLogType60000)});
const DriveRequestType kDriveRequestType8({Path(""), LogsAs(kUpLogType60008)});
const DriveRequestType kDriveRequestType9({Path("/drive/v1/files/createComplete?fields=id,fileName,category,mimeType,parentFolder,contentVersion"), LogsAs(kUpLogType60009)});
const DriveRequestType kDriveRequestType10({Path(""), LogsAs(kUpLogType60010)});
const DriveRequestType kDriveRequestType11({Path("/drive/v1/files/generateIds?count=1"), LogsAs(kUpLogType60014)});
const DriveRequestType kDriveRequestType12({Path("/drive/v1/files/{0}/assets/{1}/revisions/{2}"), LogsAs(kUpLogType60023)});

// SyncDriveType
const SyncDriveType kSyncDriveType0(0, {Path("/drive/v1/channels/stop"), LogsAs(kUpLogType12009)});

// BusinessType
const BusinessType kBusinessType0(0, {Path("/cloudpay/user"), LogsAs(kUpLogType10004)});

// BasicRequestType
const BasicRequestType kBasicRequestType0(0, {Path(""), LogsAs(kUpLogType60022)});

// PortalRequestType
const PortalRequestType kPortalRequestType0(0, {Path("/pcclient/queryDownloadTask"), LogsAs(kUpLogType60015)});

// PortalInferfaceType
const PortalInferfaceType kPortalInferfaceType0(0, {Path("/pcclient/querytask"), LogsAs(kUpLogTypeMinus1)});
const PortalInferfaceType kPortalInferfaceType1({Path("/pcclient/getproperties"), LogsAs(kUpLogType10006)});
const PortalInferfaceType kPortalInferfaceType2({Path("/pcclient/pushlog"), LogsAs(kUpLogType20120)});
const PortalInferfaceType kPortalInferfaceType3({Path("/pcclient/refreshtoken"), LogsAs(kUpLogType10005)});
const PortalInferfaceType kPortalInferfaceType4({Path("/pcclient/logout"), LogsAs(kUpLogType10002)});
const PortalInferfaceType kPortalInferfaceType5({Path("/contact/exportContacts"), LogsAs(kUpLogType3115)});
const PortalInferfaceType kPortalInferfaceType6({Path("/pcclient/getAccessTokenByCode"), LogsAs(kUpLogType10007)});

// BasicType
const BasicType kBasicType10204(10204, {Path("/userDeviceRegister"), LogsAs(kUpLogType10204)});
const BasicType kBasicType10205(10205, {Path("/userDeviceUnRegister"), LogsAs(kUpLogType10205)});
const BasicType kBasicType10206(10206, {Path("/getUserDeviceInfo"), LogsAs(kUpLogType10206)});
const BasicType kBasicType10207(10207, {Path("/getLastOperationRecord"), LogsAs(kUpLogType10207)});
const BasicType kBasicType10208(10208, {Path("/getUserRegister"), LogsAs(kUpLogType10208)});
const BasicType kBasicType10209(10209, {Path("/sysConfInit"), LogsAs(kUpLogType10209)});
const BasicType kBasicType10210(10210, {Path("/sysConfRefresh"), LogsAs(kUpLogType10209)});
const BasicType kBasicType10211(10211, {Path("/postDeviceSwitch"), LogsAs(kUpLogType10210)});
const BasicType kBasicType10212(10212, {Path("/changeUserStatus"), LogsAs(kUpLogType10211)});

// Operation events. One chain across the five tables, starting at -1; the
// attributes hold pointers, so no row consumes an extra id.

// OperateBasicEventType
const OperateBasicEventType kOperateBasicEventTypeMinus1(-1);
const OperateBasicEventType kOperateBasicEventType0({Event("\xb3\xcc\xd0\xf2\xc6\xf4\xb6\xaf", kAnyBaseCmd10203, "Login")}); // 程序启动
const OperateBasicEventType kOperateBasicEventType1({Event("\xd3\xc3\xbb\xa7\xb5\xc7\xc2\xbc", kAnyBaseCmd10203, "Home")}); // 用户登录
const OperateBasicEventType kOperateBasicEventType2({Event("\xbf\xcd\xbb\xa7\xb6\xcb\xd7\xee\xb4\xf3\xbb\xaf", kAnyBaseCmd10203, "Home")}); // 客户端最大化
const OperateBasicEventType kOperateBasicEventType3({Event("\xbf\xcd\xbb\xa7\xb6\xcb\xbb\xb9\xd4\xad", kAnyBaseCmd10203, "Home")}); // 客户端还原
const OperateBasicEventType kOperateBasicEventType4({Event("\xb4\xf2\xbf\xaa\xc9\xe8\xd6\xc3", kAnyBaseCmd10203, "Home").Opens("Setting", "Setting_common")}); // 打开设置
const OperateBasicEventType kOperateBasicEventType5({Event("\xb4\xf2\xbf\xaa\xb9\xd8\xd3\xda", kAnyBaseCmd10203, "Home").Opens("about", "")}); // 打开关于
const OperateBasicEventType kOperateBasicEventType6({Event("\xb4\xf2\xbf\xaa\xce\xca\xcc\xe2\xb7\xb4\xc0\xa1", kAnyBaseCmd10203, "Home").Opens("feedBack", "")}); // 打开问题反馈
const OperateBasicEventType kOperateBasicEventType7({Event("\xb4\xf2\xbf\xaa\xb4\xab\xca\xe4\xb9\xdc\xc0\xed", kAnyBaseCmd10203, "Home").Opens("DownloadManagement", "")}); // 打开传输管理
const OperateBasicEventType kOperateBasicEventType8({Event("\xcc\xe1\xbd\xbb\xb7\xb4\xc0\xa1", kAnyBaseCmd10301, "feedBack")}); // 提交反馈
const OperateBasicEventType kOperateBasicEventType9({Event("\xbf\xaa\xca\xbc/\xd4\xdd\xcd\xa3\xc8\xab\xb2\xbf\xcf\xc2\xd4\xd8", kAnyBaseCmd10401, "DownloadManagement_DownloadingList")}); // 开始/暂停全部下载
const OperateBasicEventType kOperateBasicEventType10({Event("\xc8\xa1\xcf\xfb\xc8\xab\xb2\xbf\xcf\xc2\xd4\xd8", kAnyBaseCmd10401, "DownloadManagement_DownloadingList")}); // 取消全部下载
const OperateBasicEventType kOperateBasicEventType11({Event("\xbf\xaa\xca\xbc/\xd4\xdd\xcd\xa3\xcf\xc2\xd4\xd8\xc8\xce\xce\xf1", kAnyBaseCmd10401, "DownloadManagement_DownloadingList")}); // 开始/暂停下载任务
const OperateBasicEventType kOperateBasicEventType12({Event("\xc8\xa1\xcf\xfb\xcf\xc2\xd4\xd8\xc8\xce\xce\xf1", kAnyBaseCmd10401, "DownloadManagement_DownloadingList")}); // 取消下载任务
const OperateBasicEventType kOperateBasicEventType13({Event("\xc7\xe5\xbf\xd5\xbc\xc7\xc2\xbc", kAnyBaseCmd10401, "DownloadManagement_CompleteList")}); // 清空记录
const OperateBasicEventType kOperateBasicEventType14({Event("\xb4\xf2\xbf\xaa\xcb\xf9\xd4\xda\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd10401, "DownloadManagement_CompleteList")}); // 打开所在文件夹
const OperateBasicEventType kOperateBasicEventType15({Event("\xc7\xe5\xb3\xfd\xcf\xc2\xd4\xd8\xbc\xc7\xc2\xbc", kAnyBaseCmd10401, "DownloadManagement_CompleteList")}); // 清除下载记录
const OperateBasicEventType kOperateBasicEventType16({Event("\xca\xd5\xc6\xf0\xc9\xcf\xb4\xab\xb9\xdc\xc0\xed", kAnyBaseCmd10501, "UploadManagement")}); // 收起上传管理
const OperateBasicEventType kOperateBasicEventType17({Event("\xbf\xaa\xca\xbc/\xd4\xdd\xcd\xa3\xc8\xab\xb2\xbf\xc9\xcf\xb4\xab", kAnyBaseCmd10501, "UploadManagement")}); // 开始/暂停全部上传
const OperateBasicEventType kOperateBasicEventType18({Event("\xc8\xa1\xcf\xfb\xc8\xab\xb2\xbf\xc9\xcf\xb4\xab", kAnyBaseCmd10501, "UploadManagement")}); // 取消全部上传
const OperateBasicEventType kOperateBasicEventType19({Event("\xbf\xaa\xca\xbc/\xd4\xdd\xcd\xa3\xc9\xcf\xb4\xab", kAnyBaseCmd10501, "UploadManagement")}); // 开始/暂停上传
const OperateBasicEventType kOperateBasicEventType20({Event("\xc8\xa1\xcf\xfb\xc9\xcf\xb4\xab", kAnyBaseCmd10501, "UploadManagement")}); // 取消上传
const OperateBasicEventType kOperateBasicEventType21({Event("\xbc\xec\xb2\xe2\xb8\xfc\xd0\xc2", kAnyBaseCmd10601, "Setting_Common")}); // 检测更新
const OperateBasicEventType kOperateBasicEventType22({Event("\xd6\xd8\xd6\xc3\xca\xfd\xbe\xdd\xbf\xe2", kAnyBaseCmd10601, "Setting_Others")}); // 重置数据库
const OperateBasicEventType kOperateBasicEventType23({Event("\xd3\xef\xd1\xd4\xc7\xd0\xbb\xbb", kAnyBaseCmd10601, "Setting_Others")}); // 语言切换
const OperateBasicEventType kOperateBasicEventType24({Event("\xbd\xf8\xc8\xeb\xc1\xaa\xcf\xb5\xc8\xcb", kAnyBaseCmd10701, "Contact")}); // 进入联系人
const OperateBasicEventType kOperateBasicEventType25({Event("\xc1\xaa\xcf\xb5\xc8\xcb\xb5\xbc\xb3\xf6", kAnyBaseCmd10701, "Contact")}); // 联系人导出
const OperateBasicEventType kOperateBasicEventType26({Event("\xbd\xf8\xc8\xeb\xb1\xb8\xcd\xfc\xc2\xbc", kAnyBaseCmd10901, "Notepad")}); // 进入备忘录
const OperateBasicEventType kOperateBasicEventType27({Event("\xbd\xf8\xc8\xeb\xc2\xbc\xd2\xf4", kAnyBaseCmd11001, "Recorder")}); // 进入录音
const OperateBasicEventType kOperateBasicEventType28({Event("\xc2\xbc\xd2\xf4\xcf\xc2\xd4\xd8", kAnyBaseCmd11001, "Recorder")}); // 录音下载
const OperateBasicEventType kOperateBasicEventType29({Event("\xc2\xbc\xd2\xf4\xb2\xa5\xb7\xc5", kAnyBaseCmd11001, "Recorder")}); // 录音播放
const OperateBasicEventType kOperateBasicEventType30({Event("\xc2\xbc\xd2\xf4\xb2\xa5\xb7\xc5\xbd\xe1\xca\xf8", kAnyBaseCmd11001, "Recorder")}); // 录音播放结束
const OperateBasicEventType kOperateBasicEventType31({Event("\xc2\xbc\xd2\xf4\xb2\xa5\xb7\xc5\xd4\xdd\xcd\xa3", kAnyBaseCmd11001, "Recorder")}); // 录音播放暂停
const OperateBasicEventType kOperateBasicEventType32({Event("\xc2\xbc\xd2\xf4\xb2\xa5\xb7\xc5\xbb\xd6\xb8\xb4", kAnyBaseCmd11001, "Recorder")}); // 录音播放恢复
const OperateBasicEventType kOperateBasicEventType33({Event("\xbd\xf8\xc8\xeb\xd4\xc6\xc5\xcc", kAnyBaseCmd11101, "Collection")}); // 进入云盘
const OperateBasicEventType kOperateBasicEventType34({Event("\xc9\xcf\xb4\xab\xce\xc4\xbc\xfe", kAnyBaseCmd11101, "Collection")}); // 上传文件
const OperateBasicEventType kOperateBasicEventType35({Event("\xc9\xcf\xb4\xab\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd11101, "Collection")}); // 上传文件夹
const OperateBasicEventType kOperateBasicEventType36({Event("\xcf\xc2\xd4\xd8\xce\xc4\xbc\xfe", kAnyBaseCmd11101, "Collection")}); // 下载文件
const OperateBasicEventType kOperateBasicEventType37({Event("\xcf\xc2\xd4\xd8\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd11101, "Collection")}); // 下载文件夹
const OperateBasicEventType kOperateBasicEventType38({Event("\xbd\xf8\xc8\xeb\xb2\xe9\xd5\xd2\xca\xd6\xbb\xfa", kAnyBaseCmd11201, "Mobile")}); // 进入查找手机
const OperateBasicEventType kOperateBasicEventType39({Event("\xbd\xf8\xc8\xeb\xcd\xbc\xbf\xe2", kAnyBaseCmd4100, "Gallery")}); // 进入图库
const OperateBasicEventType kOperateBasicEventType40({Event("\xcd\xbc\xbf\xe2\xbc\xd3\xd4\xd8\xcd\xea\xb3\xc9", kAnyBaseCmd4100, "Gallery")}); // 图库加载完成
const OperateBasicEventType kOperateBasicEventType41({Event("\xd0\xc2\xbd\xa8\xcf\xe0\xb2\xe1", kAnyBaseCmd4100)}); // 新建相册
const OperateBasicEventType kOperateBasicEventType42({Event("\xcf\xe0\xb2\xe1\xd6\xd8\xc3\xfc\xc3\xfb", kAnyBaseCmd4100)}); // 相册重命名
const OperateBasicEventType kOperateBasicEventType43({Event("\xc9\xbe\xb3\xfd\xcf\xe0\xb2\xe1", kAnyBaseCmd2114)}); // 删除相册
const OperateBasicEventType kOperateBasicEventType44({Event("\xbb\xd8\xca\xd5\xd5\xbe\xcd\xbc\xc6\xac\xbb\xd6\xb8\xb4", kAnyBaseCmd2116)}); // 回收站图片恢复
const OperateBasicEventType kOperateBasicEventType45({Event("\xbb\xd8\xca\xd5\xd5\xbe\xcd\xbc\xc6\xac\xc9\xbe\xb3\xfd", kAnyBaseCmd2114)}); // 回收站图片删除
const OperateBasicEventType kOperateBasicEventType46({Event("\xbb\xd8\xca\xd5\xd5\xbe\xc7\xe5\xbf\xd5", kAnyBaseCmd2114)}); // 回收站清空
const OperateBasicEventType kOperateBasicEventType47({Event("\xb4\xf3\xcd\xbc\xbc\xd3\xd4\xd8\xcd\xea\xb3\xc9", kAnyBaseCmd4100)}); // 大图加载完成
const OperateBasicEventType kOperateBasicEventType48({Event("\xcd\xbc\xc6\xac\xca\xd5\xb2\xd8/\xc8\xa1\xcf\xfb\xca\xd5\xb2\xd8", kAnyBaseCmd4100)}); // 图片收藏/取消收藏
const OperateBasicEventType kOperateBasicEventType49({Event("\xcd\xbc\xc6\xac\xd0\xfd\xd7\xaa", kAnyBaseCmd4100)}); // 图片旋转
const OperateBasicEventType kOperateBasicEventType50({Event("\xcd\xbc\xc6\xac\xca\xf4\xd0\xd4\xb2\xe9\xbf\xb4", kAnyBaseCmd4100)}); // 图片属性查看
const OperateBasicEventType kOperateBasicEventType51({Event("\xcd\xbc\xc6\xac\xd1\xa1\xd6\xd0\xc7\xd0\xbb\xbb", kAnyBaseCmd4100)}); // 图片选中切换
const OperateBasicEventType kOperateBasicEventType52({Event("\xcd\xbc\xbf\xe2\xc9\xcf\xb4\xab", kAnyBaseCmd2116)}); // 图库上传
const OperateBasicEventType kOperateBasicEventType53({Event("\xcd\xbc\xbf\xe2\xcf\xc2\xd4\xd8", kAnyBaseCmd2116)}); // 图库下载
const OperateBasicEventType kOperateBasicEventType54({Event("\xcd\xbc\xc6\xac\xd2\xc6\xb6\xaf", kAnyBaseCmd4100)}); // 图片移动
const OperateBasicEventType kOperateBasicEventType55({Event("\xcd\xbc\xc6\xac\xc9\xbe\xb3\xfd", kAnyBaseCmd2114)}); // 图片删除
const OperateBasicEventType kOperateBasicEventType56({Event("\xb2\xbc\xbe\xd6\xcb\xf5\xb7\xc5", kAnyBaseCmd4100)}); // 布局缩放
const OperateBasicEventType kOperateBasicEventType57({Event("\xb2\xbc\xbe\xd6\xcb\xf5\xb7\xc5\xd7\xee\xb4\xf3", kAnyBaseCmd4100)}); // 布局缩放最大
const OperateBasicEventType kOperateBasicEventType58({Event("\xb2\xbc\xbe\xd6\xcb\xf5\xb7\xc5\xd7\xee\xd0\xa1", kAnyBaseCmd4100)}); // 布局缩放最小
const OperateBasicEventType kOperateBasicEventType59({Event("\xcd\xbc\xbf\xe2\xd1\xa1\xd4\xf1\xc8\xd5\xc6\xda", kAnyBaseCmd4100)}); // 图库选择日期
const OperateBasicEventType kOperateBasicEventType60({Event("\xd1\xa1\xd4\xf1\xc8\xd5\xc6\xda\xcf\xc2\xcb\xf9\xd3\xd0\xcd\xbc\xc6\xac", kAnyBaseCmd4100)}); // 选择日期下所有图片
const OperateBasicEventType kOperateBasicEventType61({Event("\xc8\xa1\xcf\xfb\xd1\xa1\xd4\xf1\xc8\xd5\xc6\xda\xcf\xc2\xcb\xf9\xd3\xd0\xcd\xbc\xc6\xac", kAnyBaseCmd4100)}); // 取消选择日期下所有图片
const OperateBasicEventType kOperateBasicEventType62({Event("\xc8\xa1\xcf\xfb\xd1\xa1\xd4\xf1", kAnyBaseCmd4100)}); // 取消选择
const OperateBasicEventType kOperateBasicEventType63({Event("\xd2\xb3\xc3\xe6\xb9\xf6\xb6\xaf", kAnyBaseCmd4100)}); // 页面滚动
const OperateBasicEventType kOperateBasicEventType64({Event("\xca\xd3\xc6\xb5\xb2\xa5\xb7\xc5", kAnyBaseCmd4100)}); // 视频播放
const OperateBasicEventType kOperateBasicEventType65({Event("\xca\xd3\xc6\xb5\xd4\xdd\xcd\xa3", kAnyBaseCmd4100)}); // 视频暂停
const OperateBasicEventType kOperateBasicEventType66({Event("\xca\xd3\xc6\xb5\xbb\xd6\xb8\xb4", kAnyBaseCmd4100)}); // 视频恢复
const OperateBasicEventType kOperateBasicEventType67({Event("\xca\xd3\xc6\xb5\xbd\xe1\xca\xf8", kAnyBaseCmd4100)}); // 视频结束
const OperateBasicEventType kOperateBasicEventType68({Event("\xca\xd3\xc6\xb5\xb2\xa5\xb7\xc5\xca\xb1\xb3\xa4", kAnyBaseCmd4100)}); // 视频播放时长
const OperateBasicEventType kOperateBasicEventType69({Event("\xb4\xf2\xbf\xaa\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed", kAnyBaseCmd11401, "Home")}); // 打开空间管理
const OperateBasicEventType kOperateBasicEventType70({Event("\xc9\xbe\xb3\xfd\xb1\xb8\xb7\xdd", kAnyBaseCmd11401, "Home")}); // 删除备份
const OperateBasicEventType kOperateBasicEventType71({Event("\xc8\xab\xb2\xbf\xc9\xbe\xb3\xfd", kAnyBaseCmd11401, "Home")}); // 全部删除
const OperateBasicEventType kOperateBasicEventType72({Event("\xc8\xa1\xcf\xfb/\xb9\xd8\xb1\xd5\xc9\xfd\xbc\xb6", kAnyBaseCmd11501)}); // 取消/关闭升级
const OperateBasicEventType kOperateBasicEventType73({Event("\xbc\xcc\xd0\xf8\xb0\xb2\xd7\xb0", kAnyBaseCmd11501)}); // 继续安装
const OperateBasicEventType kOperateBasicEventType74({Event("\xc1\xa2\xbc\xb4\xc9\xfd\xbc\xb6", kAnyBaseCmd11501)}); // 立即升级
const OperateBasicEventType kOperateBasicEventType75({Event("\xbf\xaa\xca\xbc\xb0\xb2\xd7\xb0", kAnyBaseCmd11501)}); // 开始安装
const OperateBasicEventType kOperateBasicEventType76({Event("\xb8\xb2\xb8\xc7\xb0\xb2\xd7\xb0", kAnyBaseCmd11501)}); // 覆盖安装
const OperateBasicEventType kOperateBasicEventType77({Event("\xbd\xe1\xca\xf8/\xb9\xd8\xb1\xd5", kAnyBaseCmd11501)}); // 结束/关闭
const OperateBasicEventType kOperateBasicEventType78({Event("\xc9\xfd\xbc\xb6\xb0\xb2\xd7\xb0", kAnyBaseCmd11501)}); // 升级安装
const OperateBasicEventType kOperateBasicEventType79({Event("\xb8\xfc\xb8\xc4\xce\xbb\xd6\xc3", kAnyBaseCmd12001)}); // 更改位置
const OperateBasicEventType kOperateBasicEventType80({Event("\xd1\xa1\xd4\xf1\xce\xd2\xb5\xc4\xce\xc4\xb5\xb5\xcc\xed\xbc\xd3\xb5\xbd\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd12001)}); // 选择我的文档添加到云盘文件夹
const OperateBasicEventType kOperateBasicEventType81({Event("\xd1\xa1\xd4\xf1\xd7\xc0\xc3\xe6\xcc\xed\xbc\xd3\xb5\xbd\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd12001)}); // 选择桌面添加到云盘文件夹
const OperateBasicEventType kOperateBasicEventType82({Event("\xc1\xa2\xbc\xb4\xbf\xaa\xc6\xf4", kAnyBaseCmd12001)}); // 立即开启
const OperateBasicEventType kOperateBasicEventType83({Event("\xc9\xd4\xba\xf3\xd4\xda\xc9\xe8\xd6\xc3\xd6\xd0\xbf\xaa\xc6\xf4", kAnyBaseCmd12001)}); // 稍后在设置中开启
const OperateBasicEventType kOperateBasicEventType84({Event("\xb4\xf2\xbf\xaa\xd4\xf3\xdc\xbd\xc0\xad\xd4\xc6\xc5\xcc", kAnyBaseCmd12001)}); // 打开泽芙拉云盘
const OperateBasicEventType kOperateBasicEventType85({Event("\xc9\xd4\xba\xf3\xc7\xb0\xcd\xf9", kAnyBaseCmd12001)}); // 稍后前往
const OperateBasicEventType kOperateBasicEventType86({Event("\xb8\xfc\xb8\xc4\xce\xbb\xd6\xc3", kAnyBaseCmd10601)}); // 更改位置
const OperateBasicEventType kOperateBasicEventType87({Event("\xd1\xa1\xd4\xf1\xce\xd2\xb5\xc4\xce\xc4\xb5\xb5\xcc\xed\xbc\xd3\xb5\xbd\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd10601)}); // 选择我的文档添加到云盘文件夹
const OperateBasicEventType kOperateBasicEventType88({Event("\xd1\xa1\xd4\xf1\xd7\xc0\xc3\xe6\xcc\xed\xbc\xd3\xb5\xbd\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd10601)}); // 选择桌面添加到云盘文件夹
const OperateBasicEventType kOperateBasicEventType89({Event("\xc8\xb7\xb6\xa8\xb9\xd8\xb1\xd5\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd10601)}); // 确定关闭云盘文件夹
const OperateBasicEventType kOperateBasicEventType90({Event("\xc8\xb7\xb6\xa8\xc8\xa1\xcf\xfb\xd7\xc0\xc3\xe6/\xce\xc4\xb5\xb5\xcd\xac\xb2\xbd", kAnyBaseCmd10601)}); // 确定取消桌面/文档同步
const OperateBasicEventType kOperateBasicEventType91({Event("\xcd\xac\xb2\xbd\xc5\xcc\xd7\xb4\xcc\xac", kAnyBaseCmd10601)}); // 同步盘状态
const OperateBasicEventType kOperateBasicEventType92({Event("\xbf\xaa\xc6\xf4\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd11101)}); // 开启云盘文件夹
const OperateBasicEventType kOperateBasicEventType93({Event("\xb4\xf2\xbf\xaa\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0", kAnyBaseCmd11101)}); // 打开云盘文件夹
const OperateBasicEventType kOperateBasicEventType94({Event("\xbd\xf8\xc8\xeb\xd6\xa7\xb8\xb6\xc8\xeb\xbf\xda", kAnyBaseCmd12004)}); // 进入支付入口
const OperateBasicEventType kOperateBasicEventType95({Event("\xcd\xcb\xb3\xf6\xd6\xa7\xb8\xb6", kAnyBaseCmd12004)}); // 退出支付
const OperateBasicEventType kOperateBasicEventType96({Event("\xcd\xcb\xb3\xf6\xbf\xcd\xbb\xa7\xb6\xcb\xb5\xaf\xbf\xf2", kAnyBaseCmd10203)}); // 退出客户端弹框
const OperateBasicEventType kOperateBasicEventType97({Event("\xc8\xb7\xc8\xcf\xcd\xcb\xb3\xf6\xbf\xcd\xbb\xa7\xb6\xcb", kAnyBaseCmd10203)}); // 确认退出客户端
const OperateBasicEventType kOperateBasicEventType98({Event("\xcd\xcb\xb3\xf6\xbf\xcd\xbb\xa7\xb6\xcb\xd3\xd0\xce\xb4\xcd\xea\xb3\xc9\xb4\xab\xca\xe4\xc8\xce\xce\xf1\xb5\xaf\xbf\xf2", kAnyBaseCmd10203)}); // 退出客户端有未完成传输任务弹框
const OperateBasicEventType kOperateBasicEventType99({Event("\xd3\xd0\xce\xb4\xcd\xea\xb3\xc9\xb4\xab\xca\xe4\xc8\xce\xce\xf1\xc8\xb7\xc8\xcf\xcd\xcb\xb3\xf6\xbf\xcd\xbb\xa7\xb6\xcb", kAnyBaseCmd10203)}); // 有未完成传输任务确认退出客户端
const OperateBasicEventType kOperateBasicEventType100({Event("\xc7\xd0\xbb\xbb\xd5\xcb\xba\xc5\xd3\xd0\xce\xb4\xcd\xea\xb3\xc9\xb4\xab\xca\xe4\xc8\xce\xce\xf1\xb5\xaf\xbf\xf2", kAnyBaseCmd10203)}); // 切换账号有未完成传输任务弹框
const OperateBasicEventType kOperateBasicEventType101({Event("\xc8\xb7\xc8\xcf\xc7\xd0\xbb\xbb\xd5\xcb\xba\xc5", kAnyBaseCmd10203)}); // 确认切换账号
const OperateBasicEventType kOperateBasicEventType102({Event("\xc7\xd0\xbb\xbb\xd5\xcb\xba\xc5\xb5\xaf\xbf\xf2", kAnyBaseCmd10203)}); // 切换账号弹框
const OperateBasicEventType kOperateBasicEventType103({Event("\xc8\xb7\xc8\xcf\xc7\xd0\xbb\xbb\xd5\xcb\xba\xc5", kAnyBaseCmd10203)}); // 确认切换账号
const OperateBasicEventType kOperateBasicEventType104({Event("\xcc\xe1\xca\xbe\xb5\xc7\xc2\xbc\xd5\xcb\xbb\xa7\xd3\xebKlubam\xb2\xbb\xcd\xac", kAnyBaseCmd10203)}); // 提示登录账户与Klubam不同
const OperateBasicEventType kOperateBasicEventType105({Event("\xcd\xa8\xb9\xfdKlubam\xb5\xc7\xc2\xbc\xb3\xc9\xb9\xa6", kAnyBaseCmd10203)}); // 通过Klubam登录成功
const OperateBasicEventType kOperateBasicEventType106({Event("\xb7\xc3\xce\xca\xca\xd7\xd2\xb3", kAnyBaseCmd12003, "Home")}); // 访问首页
const OperateBasicEventType kOperateBasicEventType107({Event("\xd3\xd2\xbc\xfc\xc0\xad\xc6\xf0\xcd\xd0\xc5\xcc", kAnyBaseCmd12003, "Home")}); // 右键拉起托盘
const OperateBasicEventType kOperateBasicEventType108({Event("\xcd\xa8\xb9\xfd\xd7\xc0\xc3\xe6\xbf\xec\xbd\xdd\xb7\xbd\xca\xbd\xc6\xf4\xb6\xaf\xbf\xcd\xbb\xa7\xb6\xcb", kAnyBaseCmd12003, "Home")}); // 通过桌面快捷方式启动客户端
const OperateBasicEventType kOperateBasicEventType109({Event("\xcd\xa8\xb9\xfd\xbf\xaa\xca\xbc\xb2\xcb\xb5\xa5\xc6\xf4\xb6\xaf\xbf\xcd\xbb\xa7\xb6\xcb", kAnyBaseCmd12003, "Home")}); // 通过开始菜单启动客户端
const OperateBasicEventType kOperateBasicEventType110({Event("\xbf\xaa\xbb\xfa\xd7\xd4\xc6\xf4\xb6\xaf", kAnyBaseCmd12003, "Home")}); // 开机自启动
const OperateBasicEventType kOperateBasicEventType111({Event("\xc9\xe8\xb1\xb8\xd4\xa4\xd7\xb0", kAnyBaseCmd11501, "InStall")}); // 设备预装
const OperateBasicEventType kOperateBasicEventType112({Event("\xb5\xc7\xc2\xbc\xd5\xca\xba\xc5", kAnyBaseCmd12003, "Login")}); // 登录帐号
const OperateBasicEventType kOperateBasicEventType113({Event("\xcf\xd4\xca\xbe\xcd\xd0\xc5\xcc", kAnyBaseCmd12003, "Setting")}); // 显示托盘
const OperateBasicEventType kOperateBasicEventType114({Event("\xb2\xbb\xcf\xd4\xca\xbe\xcd\xd0\xc5\xcc", kAnyBaseCmd12003, "Setting")}); // 不显示托盘
const OperateBasicEventType kOperateBasicEventType115({Event("\xca\xd3\xc6\xb5\xb2\xa5\xb7\xc5\xca\xa7\xb0\xdc", kAnyBaseCmd2116, "Gallery")}); // 视频播放失败
const OperateBasicEventType kOperateBasicEventType116({Event("\xb0\xb2\xd7\xb0\xca\xa7\xb0\xdc", kAnyBaseCmd11501, "InStall")}); // 安装失败
const OperateBasicEventType kOperateBasicEventType117({Event("\xd0\xb6\xd4\xd8\xca\xa7\xb0\xdc", kAnyBaseCmd11501, "InStall")}); // 卸载失败
const OperateBasicEventType kOperateBasicEventType118({Event("\xb8\xfc\xb8\xc4\xcd\xac\xb2\xbd\xc5\xcc\xc2\xb7\xbe\xb6\xca\xa7\xb0\xdc", kAnyBaseCmd10601, "Setting")}); // 更改同步盘路径失败
const OperateBasicEventType kOperateBasicEventType119({Event("\xd7\xca\xd4\xb4\xb9\xdc\xc0\xed\xc6\xf7\xd7\xb4\xcc\xac\xcc\xf5\xa3\xac\xce\xb4\xb5\xc7\xc2\xbc\xca\xb1\xa3\xac\xb5\xe3\xbb\xf7\xc1\xa2\xbc\xb4\xb5\xc7\xc2\xbc", kAnyBaseCmd12003, "Login")}); // 资源管理器状态条，未登录时，点击立即登录
const OperateBasicEventType kOperateBasicEventType120({Event("\xd0\xc2\xbd\xa8\xcf\xe0\xb2\xe1\xca\xa7\xb0\xdc", kAnyBaseCmd2116, "Gallery")}); // 新建相册失败
const OperateBasicEventType kOperateBasicEventType121({Event("LCD\xcd\xbc\xbc\xd3\xd4\xd8\xca\xa7\xb0\xdc", kAnyBaseCmd12003, "Gallery")}); // LCD图加载失败
const OperateBasicEventType kOperateBasicEventType122({Event("\xd7\xd4\xb6\xaf\xbf\xaa\xc6\xf4\xce\xb4\xcd\xea\xb3\xc9\xb5\xc4\xb4\xab\xca\xe4\xc8\xce\xce\xf1", kAnyBaseCmd12003, "Gallery")}); // 自动开启未完成的传输任务

// OperateFileTranslateEventType
const OperateFileTranslateEventType kOperateFileTranslateEventType123({Event("\xcf\xc2\xd4\xd8\xcd\xea\xb3\xc9", kAnyBaseCmd10401, "DownloadingList")}); // 下载完成
const OperateFileTranslateEventType kOperateFileTranslateEventType124({Event("\xc9\xcf\xb4\xab\xcd\xea\xb3\xc9", kAnyBaseCmd10501, "UploadManagement")}); // 上传完成
const OperateFileTranslateEventType kOperateFileTranslateEventType125({Event("\xcf\xc2\xd4\xd8\xca\xa7\xb0\xdc", kAnyBaseCmd10501, "UploadManagement")}); // 下载失败
const OperateFileTranslateEventType kOperateFileTranslateEventType126({Event("\xc9\xcf\xb4\xab\xca\xa7\xb0\xdc", kAnyBaseCmd10501, "UploadManagement")}); // 上传失败
const OperateFileTranslateEventType kOperateFileTranslateEventType127({Event("\xcd\xbc\xbf\xe2\xc9\xcf\xb4\xab\xca\xa7\xb0\xdc", kAnyBaseCmd2116, "Gallery")}); // 图库上传失败
const OperateFileTranslateEventType kOperateFileTranslateEventType128({Event("\xcd\xbc\xbf\xe2\xcf\xc2\xd4\xd8\xca\xa7\xb0\xdc", kAnyBaseCmd10501, "UploadManagement")}); // 图库下载失败
const OperateFileTranslateEventType kOperateFileTranslateEventType129({Event("\xd4\xaa\xca\xfd\xbe\xdd\xcd\xac\xb2\xbd\xc9\xcf\xd0\xd0\xca\xa7\xb0\xdc", kAnyBaseCmd2116, "Gallery")}); // 元数据同步上行失败
const OperateFileTranslateEventType kOperateFileTranslateEventType130({Event("\xd4\xaa\xca\xfd\xbe\xdd\xcd\xac\xb2\xbd\xcf\xc2\xd0\xd0\xca\xa7\xb0\xdc", kAnyBaseCmd2116, "Gallery")}); // 元数据同步下行失败
const OperateFileTranslateEventType kOperateFileTranslateEventType131({Event("\xcb\xf5\xc2\xd4\xcd\xbc\xbc\xd3\xd4\xd8\xca\xa7\xb0\xdc", kAnyBaseCmd12003, "Gallery")}); // 缩略图加载失败

// OperateSwitchPageEventType
const OperateSwitchPageEventType kOperateSwitchPageEventType132({Event("\xc7\xb0\xcd\xf9\xd4\xc6\xbf\xd5\xbc\xe4\xcd\xf8\xd5\xbe", kAnyBaseCmd10203, "Home")}); // 前往云空间网站
const OperateSwitchPageEventType kOperateSwitchPageEventType133({Event("\xb4\xf2\xbf\xaa\xd4\xda\xcf\xdf\xb0\xef\xd6\xfa", kAnyBaseCmd10203, "Home")}); // 打开在线帮助
const OperateSwitchPageEventType kOperateSwitchPageEventType134({Event("\xb4\xf2\xbf\xaa\xce\xd2\xb5\xc4\xd4\xf3\xdc\xbd\xc0\xad\xd5\xcb\xba\xc5", kAnyBaseCmd10203, "Home")}); // 打开我的泽芙拉账号
const OperateSwitchPageEventType kOperateSwitchPageEventType135({Event("\xb4\xf2\xbf\xaa\xb5\xbc\xba\xbd\xd2\xb3", kAnyBaseCmd10203, "Home")}); // 打开导航页
const OperateSwitchPageEventType kOperateSwitchPageEventType136({Event("\xd5\xfd\xd4\xda\xcf\xc2\xd4\xd8", kAnyBaseCmd10401)}); // 正在下载
const OperateSwitchPageEventType kOperateSwitchPageEventType137({Event("\xcd\xea\xb3\xc9\xc1\xd0\xb1\xed", kAnyBaseCmd10401)}); // 完成列表
const OperateSwitchPageEventType kOperateSwitchPageEventType138({Event("\xcf\xd4\xca\xbe\xc9\xcf\xb4\xab\xb9\xdc\xc0\xed", kAnyBaseCmd10501, "UploadManagement")}); // 显示上传管理
const OperateSwitchPageEventType kOperateSwitchPageEventType139({Event("\xb3\xa3\xb9\xe6", kAnyBaseCmd10601)}); // 常规
const OperateSwitchPageEventType kOperateSwitchPageEventType140({Event("\xcd\xf8\xc2\xe7", kAnyBaseCmd10601)}); // 网络
const OperateSwitchPageEventType kOperateSwitchPageEventType141({Event("\xc6\xe4\xcb\xfb", kAnyBaseCmd10601)}); // 其他
const OperateSwitchPageEventType kOperateSwitchPageEventType142({Event("\xd4\xf3\xdc\xbd\xc0\xad\xd4\xc6\xc5\xcc", kAnyBaseCmd10601)}); // 泽芙拉云盘
const OperateSwitchPageEventType kOperateSwitchPageEventType143({Event("\xcb\xf9\xd3\xd0\xd5\xd5\xc6\xac", kAnyBaseCmd4100)}); // 所有照片
const OperateSwitchPageEventType kOperateSwitchPageEventType144({Event("\xd7\xee\xbd\xfc\xc9\xcf\xb4\xab", kAnyBaseCmd4100)}); // 最近上传
const OperateSwitchPageEventType kOperateSwitchPageEventType145({Event("\xb7\xc3\xce\xca\xcf\xb5\xcd\xb3\xcf\xe0\xb2\xe1", kAnyBaseCmd4100)}); // 访问系统相册
const OperateSwitchPageEventType kOperateSwitchPageEventType146({Event("\xb7\xc3\xce\xca\xd3\xc3\xbb\xa7\xcf\xe0\xb2\xe1", kAnyBaseCmd4100)}); // 访问用户相册
const OperateSwitchPageEventType kOperateSwitchPageEventType147({Event("\xcd\xbc\xc6\xac\xcf\xea\xc7\xe9", kAnyBaseCmd4100)}); // 图片详情
const OperateSwitchPageEventType kOperateSwitchPageEventType148({Event("\xcd\xbc\xc6\xac\xcf\xea\xc7\xe9\xb7\xb5\xbb\xd8", kAnyBaseCmd4100)}); // 图片详情返回
const OperateSwitchPageEventType kOperateSwitchPageEventType149({Event("\xcd\xbc\xc6\xac\xc8\xab\xc6\xc1", kAnyBaseCmd4100)}); // 图片全屏
const OperateSwitchPageEventType kOperateSwitchPageEventType150({Event("\xcd\xbc\xc6\xac\xbb\xb9\xd4\xad", kAnyBaseCmd4100)}); // 图片还原
const OperateSwitchPageEventType kOperateSwitchPageEventType151({Event("\xc1\xac\xc5\xc4", kAnyBaseCmd4100)}); // 连拍
const OperateSwitchPageEventType kOperateSwitchPageEventType152({Event("\xc1\xac\xc5\xc4\xb7\xb5\xbb\xd8", kAnyBaseCmd4100)}); // 连拍返回
const OperateSwitchPageEventType kOperateSwitchPageEventType153({Event("\xb4\xf2\xbf\xaa\xb9\xd9\xb7\xbd\xcd\xf8\xd5\xbe", kAnyBaseCmd11301, "about")}); // 打开官方网站
const OperateSwitchPageEventType kOperateSwitchPageEventType154({Event("\xb4\xf2\xbf\xaa\xb9\xd9\xb7\xbd\xc2\xdb\xcc\xb3", kAnyBaseCmd11301, "about")}); // 打开官方论坛
const OperateSwitchPageEventType kOperateSwitchPageEventType155({Event("\xc1\xaa\xcf\xb5\xce\xd2\xc3\xc7", kAnyBaseCmd11301, "about")}); // 联系我们
const OperateSwitchPageEventType kOperateSwitchPageEventType156({Event("\xb4\xf2\xbf\xaa\xd4\xf3\xdc\xbd\xc0\xad\xd4\xc6\xbf\xd5\xbc\xe4\xd3\xc3\xbb\xa7\xd0\xad\xd2\xe9", kAnyBaseCmd11301, "about")}); // 打开泽芙拉云空间用户协议
const OperateSwitchPageEventType kOperateSwitchPageEventType157({Event("\xb4\xf2\xbf\xaa\xb9\xd8\xd3\xda\xd4\xf3\xdc\xbd\xc0\xad\xd4\xc6\xbf\xd5\xbc\xe4\xd2\xfe\xcb\xbd\xc9\xf9\xc3\xf7", kAnyBaseCmd11301, "about")}); // 打开关于泽芙拉云空间隐私声明
const OperateSwitchPageEventType kOperateSwitchPageEventType158({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xd4\xc6\xb1\xb8\xb7\xdd", kAnyBaseCmd11401)}); // 空间管理_云备份
const OperateSwitchPageEventType kOperateSwitchPageEventType159({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xcd\xbc\xbf\xe2", kAnyBaseCmd11401)}); // 空间管理_图库
const OperateSwitchPageEventType kOperateSwitchPageEventType160({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xd4\xc6\xc5\xcc", kAnyBaseCmd11401)}); // 空间管理_云盘
const OperateSwitchPageEventType kOperateSwitchPageEventType161({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xb1\xb8\xcd\xfc\xc2\xbc", kAnyBaseCmd11401)}); // 空间管理_备忘录
const OperateSwitchPageEventType kOperateSwitchPageEventType162({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xc2\xbc\xd2\xf4", kAnyBaseCmd11401)}); // 空间管理_录音
const OperateSwitchPageEventType kOperateSwitchPageEventType163({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xc9\xa7\xc8\xc5\xc0\xb9\xbd\xd8", kAnyBaseCmd11401)}); // 空间管理_骚扰拦截
const OperateSwitchPageEventType kOperateSwitchPageEventType164({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xc1\xaa\xcf\xb5\xc8\xcb", kAnyBaseCmd11401)}); // 空间管理_联系人
const OperateSwitchPageEventType kOperateSwitchPageEventType165({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_WLAN", kAnyBaseCmd11401)}); // 空间管理_WLAN
const OperateSwitchPageEventType kOperateSwitchPageEventType166({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xe4\xaf\xc0\xc0\xc6\xf7", kAnyBaseCmd11401)}); // 空间管理_浏览器
const OperateSwitchPageEventType kOperateSwitchPageEventType167({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xc8\xd5\xc0\xfa", kAnyBaseCmd11401)}); // 空间管理_日历
const OperateSwitchPageEventType kOperateSwitchPageEventType168({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xd0\xc5\xcf\xa2", kAnyBaseCmd11401)}); // 空间管理_信息
const OperateSwitchPageEventType kOperateSwitchPageEventType169({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xcd\xa8\xbb\xb0\xbc\xc7\xc2\xbc", kAnyBaseCmd11401)}); // 空间管理_通话记录
const OperateSwitchPageEventType kOperateSwitchPageEventType170({Event("\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed_\xc6\xe4\xcb\xfb", kAnyBaseCmd11401)}); // 空间管理_其他
const OperateSwitchPageEventType kOperateSwitchPageEventType171({Event("\xbf\xd5\xbc\xe4\xb2\xbb\xd7\xe3\xb5\xaf\xbf\xf2", kAnyBaseCmd12003)}); // 空间不足弹框
const OperateSwitchPageEventType kOperateSwitchPageEventType172({Event("\xd7\xca\xd4\xb4\xb9\xdc\xc0\xed\xc6\xf7\xd7\xb4\xcc\xac\xcc\xf5\xa3\xac\xb5\xe3\xbb\xf7\xc9\xfd\xbc\xb6", kAnyBaseCmd12003, "Explorer")}); // 资源管理器状态条，点击升级
const OperateSwitchPageEventType kOperateSwitchPageEventType173({Event("\xd7\xca\xd4\xb4\xb9\xdc\xc0\xed\xc6\xf7\xd7\xb4\xcc\xac\xcc\xf5\xa3\xac\xb5\xe3\xbb\xf7\xb8\xfc\xb6\xe0_\xb0\xef\xd6\xfa\xd3\xeb\xbf\xcd\xb7\xfe", kAnyBaseCmd12003, "Explorer")}); // 资源管理器状态条，点击更多_帮助与客服
const OperateSwitchPageEventType kOperateSwitchPageEventType174({Event("\xd7\xca\xd4\xb4\xb9\xdc\xc0\xed\xc6\xf7\xd7\xb4\xcc\xac\xcc\xf5\xa3\xac\xb5\xe3\xbb\xf7\xd7\xee\xbd\xfc\xc9\xbe\xb3\xfd", kAnyBaseCmd12003, "Explorer")}); // 资源管理器状态条，点击最近删除

// OperateSwitchModuleEventType
const OperateSwitchModuleEventType kOperateSwitchModuleEventType175({Event("\xc0\xeb\xbf\xaa\xca\xd7\xd2\xb3", kAnyBaseCmd10203, "Home").After(kOperateBasicEventType1)}); // 离开首页
const OperateSwitchModuleEventType kOperateSwitchModuleEventType176({Event("\xc8\xa1\xcf\xfb\xba\xcd\xb9\xd8\xb1\xd5\xb7\xb4\xc0\xa1", kAnyBaseCmd10301, "feedBack").After(kOperateBasicEventType6)}); // 取消和关闭反馈
const OperateSwitchModuleEventType kOperateSwitchModuleEventType177({Event("\xb9\xd8\xb1\xd5\xcf\xc2\xd4\xd8\xb9\xdc\xc0\xed", kAnyBaseCmd10401, "DownloadManagement").After(kOperateBasicEventType7)}); // 关闭下载管理
const OperateSwitchModuleEventType kOperateSwitchModuleEventType178({Event("\xb9\xd8\xb1\xd5\xc9\xcf\xb4\xab\xb9\xdc\xc0\xed", kAnyBaseCmd10501, "UploadManagement")}); // 关闭上传管理
const OperateSwitchModuleEventType kOperateSwitchModuleEventType179({Event("\xc8\xb7\xc8\xcf\xc9\xe8\xd6\xc3", kAnyBaseCmd10601, "Setting").After(kOperateBasicEventType4)}); // 确认设置
const OperateSwitchModuleEventType kOperateSwitchModuleEventType180({Event("\xc8\xa1\xcf\xfb\xba\xcd\xb9\xd8\xb1\xd5\xc9\xe8\xd6\xc3", kAnyBaseCmd10601, "Setting").After(kOperateBasicEventType4)}); // 取消和关闭设置
const OperateSwitchModuleEventType kOperateSwitchModuleEventType181({Event("\xc0\xeb\xbf\xaa\xc1\xaa\xcf\xb5\xc8\xcb", kAnyBaseCmd10701, "Contact").After(kOperateBasicEventType24)}); // 离开联系人
const OperateSwitchModuleEventType kOperateSwitchModuleEventType182({Event("\xc0\xeb\xbf\xaa\xb1\xb8\xcd\xfc\xc2\xbc", kAnyBaseCmd10901, "Notepad").After(kOperateBasicEventType26)}); // 离开备忘录
const OperateSwitchModuleEventType kOperateSwitchModuleEventType183({Event("\xc0\xeb\xbf\xaa\xc2\xbc\xd2\xf4", kAnyBaseCmd11001, "Recorder").After(kOperateBasicEventType27)}); // 离开录音
const OperateSwitchModuleEventType kOperateSwitchModuleEventType184({Event("\xc0\xeb\xbf\xaa\xd4\xc6\xc5\xcc", kAnyBaseCmd11101, "Collection").After(kOperateBasicEventType24)}); // 离开云盘
const OperateSwitchModuleEventType kOperateSwitchModuleEventType185({Event("\xc0\xeb\xbf\xaa\xb2\xe9\xd5\xd2\xca\xd6\xbb\xfa", kAnyBaseCmd11201, "Mobile").After(kOperateBasicEventType38)}); // 离开查找手机
const OperateSwitchModuleEventType kOperateSwitchModuleEventType186({Event("\xc0\xeb\xbf\xaa\xcd\xbc\xbf\xe2", kAnyBaseCmd4100, "Gallery").After(kOperateBasicEventType39)}); // 离开图库
const OperateSwitchModuleEventType kOperateSwitchModuleEventType187({Event("\xc0\xeb\xbf\xaa\xb9\xd8\xd3\xda", kAnyBaseCmd11301, "about").After(kOperateBasicEventType5)}); // 离开关于
const OperateSwitchModuleEventType kOperateSwitchModuleEventType188({Event("\xc7\xb0\xcd\xf9\xc4\xbf\xb1\xea\xb9\xdc\xc0\xed\xc4\xa3\xbf\xe9", kAnyBaseCmd11401, "spaceManagement").After(kOperateBasicEventType69)}); // 前往目标管理模块
const OperateSwitchModuleEventType kOperateSwitchModuleEventType189({Event("\xc0\xeb\xbf\xaa\xbf\xd5\xbc\xe4\xb9\xdc\xc0\xed", kAnyBaseCmd11401, "spaceManagement").After(kOperateBasicEventType69)}); // 离开空间管理
const OperateSwitchModuleEventType kOperateSwitchModuleEventType190({Event("\xc1\xa2\xbc\xb4\xcc\xe5\xd1\xe9", kAnyBaseCmd11501, "InStall").After(kOperateBasicEventType75)}); // 立即体验

// OperateSpecialEventType
const OperateSpecialEventType kOperateSpecialEventType191({Event("\xbf\xcd\xbb\xa7\xb6\xcb\xd7\xa2\xcf\xfa", kAnyBaseCmd10203, "Home").After(kOperateBasicEventType1)}); // 客户端注销
const OperateSpecialEventType kOperateSpecialEventType192({Event("\xbf\xcd\xbb\xa7\xb6\xcb\xcd\xcb\xb3\xf6", kAnyBaseCmd10203, "Home").After(kOperateBasicEventType1)}); // 客户端退出
const OperateSpecialEventType kOperateSpecialEventType193({Event("\xbf\xcd\xbb\xa7\xb6\xcb\xd7\xee\xd0\xa1\xbb\xaf", kAnyBaseCmd10203, "Home").After(kOperateBasicEventType3)}); // 客户端最小化
const OperateSpecialEventType kOperateSpecialEventType194({Event("\xbf\xaa\xbb\xfa\xd7\xd4\xc6\xf4\xc9\xe8\xd6\xc3", kAnyBaseCmd10601, "Setting_Common")}); // 开机自启设置
const OperateSpecialEventType kOperateSpecialEventType195({Event("\xd7\xd4\xb6\xaf\xbc\xec\xb2\xe9\xb8\xfc\xd0\xc2\xc9\xe8\xd6\xc3", kAnyBaseCmd10601, "Setting_Common")}); // 自动检查更新设置
const OperateSpecialEventType kOperateSpecialEventType196({Event("\xcd\xac\xca\xb1\xc9\xcf\xb4\xab\xc8\xce\xce\xf1\xca\xfd\xd0\xde\xb8\xc4", kAnyBaseCmd10601, "Setting_Network")}); // 同时上传任务数修改
const OperateSpecialEventType kOperateSpecialEventType197({Event("\xcd\xac\xca\xb1\xcf\xc2\xd4\xd8\xc8\xce\xce\xf1\xca\xfd\xd0\xde\xb8\xc4", kAnyBaseCmd10601, "Setting_Network")}); // 同时下载任务数修改
const OperateSpecialEventType kOperateSpecialEventType198({Event("\xd0\xde\xb8\xc4\xbb\xba\xb4\xe6\xc2\xb7\xbe\xb6", kAnyBaseCmd10601, "Setting_Others")}); // 修改缓存路径
const OperateSpecialEventType kOperateSpecialEventType199({Event("\xd0\xde\xb8\xc4\xce\xc4\xbc\xfe\xb4\xe6\xb4\xa2\xc2\xb7\xbe\xb6", kAnyBaseCmd10601, "Setting_Others")}); // 修改文件存储路径
const OperateSpecialEventType kOperateSpecialEventType200({Event("\xcd\xcb\xb3\xf6\xca\xb1\xc9\xbe\xb3\xfd\xb1\xbe\xb5\xd8\xbb\xba\xb4\xe6", kAnyBaseCmd10601, "Setting_Common")}); // 退出时删除本地缓存
const OperateSpecialEventType kOperateSpecialEventType201({Event("\xc5\xfa\xc1\xbf\xd1\xa1\xd4\xf1", kAnyBaseCmd4100)}); // 批量选择
const OperateSpecialEventType kOperateSpecialEventType202({Event("\xbf\xaa\xc6\xf4/\xb9\xd8\xb1\xd5\xd4\xf3\xdc\xbd\xc0\xad\xd4\xc6\xc5\xcc", kAnyBaseCmd10601, "Setting_ZephraDrive")}); // 开启/关闭泽芙拉云盘
const OperateSpecialEventType kOperateSpecialEventType203({Event("\xc8\xa1\xcf\xfb\xd7\xc0\xc3\xe6/\xce\xc4\xb5\xb5\xcd\xac\xb2\xbd", kAnyBaseCmd10601, "Setting_ZephraDrive")}); // 取消桌面/文档同步
const OperateSpecialEventType kOperateSpecialEventType204({Event("\xb9\xd8\xb1\xd5\xd4\xc6\xc5\xcc\xce\xc4\xbc\xfe\xbc\xd0\xb5\xaf\xbf\xf2", kAnyBaseCmd10601)}); // 关闭云盘文件夹弹框

// clang-format on

// The rows of every enumeration, in definition order.

template <> const std::vector<const AnyBaseCmd*>& EnumRows<AnyBaseCmd>()
{
    static const std::vector<const AnyBaseCmd*> rows{
        &kAnyBaseCmd4100,  &kAnyBaseCmd2114,  &kAnyBaseCmd2116,  &kAnyBaseCmd10203, &kAnyBaseCmd10301,
        &kAnyBaseCmd10401, &kAnyBaseCmd10501, &kAnyBaseCmd10601, &kAnyBaseCmd10701, &kAnyBaseCmd10901,
        &kAnyBaseCmd11001, &kAnyBaseCmd11101, &kAnyBaseCmd11201, &kAnyBaseCmd11301, &kAnyBaseCmd11401,
        &kAnyBaseCmd11501, &kAnyBaseCmd11601, &kAnyBaseCmd12001, &kAnyBaseCmd12004, &kAnyBaseCmd12003};
    return rows;
}

template <> const std::vector<const UpLogType*>& EnumRows<UpLogType>()
{
    static const std::vector<const UpLogType*> rows{
        &kUpLogType12005, &kUpLogType12007, &kUpLogType12009, &kUpLogTypeMinus2, &kUpLogTypeMinus1,
        &kUpLogType0,     &kUpLogType2,     &kUpLogType4,     &kUpLogType6,      &kUpLogType8,
        &kUpLogType10,    &kUpLogType12,    &kUpLogType14,    &kUpLogType16,     &kUpLogType18,
        &kUpLogType20,    &kUpLogType22,    &kUpLogType24,    &kUpLogType26,     &kUpLogType28,
        &kUpLogType30,    &kUpLogType32,    &kUpLogType34,    &kUpLogType36,     &kUpLogType38,
        &kUpLogType40,    &kUpLogType42,    &kUpLogType44,    &kUpLogType46,     &kUpLogType48,
        &kUpLogType50,    &kUpLogType52,    &kUpLogType54,    &kUpLogType56,     &kUpLogType58,
        &kUpLogType60,    &kUpLogType62,    &kUpLogType64,    &kUpLogType66,     &kUpLogType68,
        &kUpLogType70,    &kUpLogType72,    &kUpLogType74,    &kUpLogType76,     &kUpLogType78,
        &kUpLogType80,    &kUpLogType82,    &kUpLogType84,    &kUpLogType3115,   &kUpLogType4100,
        &kUpLogType4101,  &kUpLogType4102,  &kUpLogType4103,  &kUpLogType4105,   &kUpLogType4106,
        &kUpLogType4107,  &kUpLogType4108,  &kUpLogType4113,  &kUpLogType4114,   &kUpLogType4115,
        &kUpLogType4116,  &kUpLogType4118,  &kUpLogType4120,  &kUpLogType4122,   &kUpLogType4124,
        &kUpLogType4126,  &kUpLogType4128,  &kUpLogType4130,  &kUpLogType4132,   &kUpLogType4134,
        &kUpLogType4136,  &kUpLogType4138,  &kUpLogType4140,  &kUpLogType4142,   &kUpLogType4144,
        &kUpLogType4146,  &kUpLogType4148,  &kUpLogType4150,  &kUpLogType4152,   &kUpLogType4154,
        &kUpLogType4156,  &kUpLogType4158,  &kUpLogType4160,  &kUpLogType5001,   &kUpLogType5002,
        &kUpLogType5003,  &kUpLogType5004,  &kUpLogType9104,  &kUpLogType9107,   &kUpLogType9105,
        &kUpLogType9106,  &kUpLogType9103,  &kUpLogType10002, &kUpLogType10004,  &kUpLogType10005,
        &kUpLogType10006, &kUpLogType10007, &kUpLogType10201, &kUpLogType10202,  &kUpLogType10204,
        &kUpLogType10205, &kUpLogType10206, &kUpLogType10207, &kUpLogType10208,  &kUpLogType10209,
        &kUpLogType10210, &kUpLogType10211, &kUpLogType20120, &kUpLogType30101,  &kUpLogType30102,
        &kUpLogType30103, &kUpLogType40001, &kUpLogType30200, &kUpLogType30201,  &kUpLogType30202,
        &kUpLogType30203, &kUpLogType30204, &kUpLogType30205, &kUpLogType30207,  &kUpLogType50001,
        &kUpLogType60000, &kUpLogType60001, &kUpLogType60002, &kUpLogType60003,  &kUpLogType60004,
        &kUpLogType60005, &kUpLogType60006, &kUpLogType60007, &kUpLogType60008,  &kUpLogType60009,
        &kUpLogType60010, &kUpLogType60011, &kUpLogType60012, &kUpLogType60014,  &kUpLogType60015,
        &kUpLogType60016, &kUpLogType60017, &kUpLogType60018, &kUpLogType60019,  &kUpLogType60020,
        &kUpLogType60021, &kUpLogType60022, &kUpLogType60023, &kUpLogType60024};
    return rows;
}

template <> const std::vector<const NspRequestType*>& EnumRows<NspRequestType>()
{
    static const std::vector<const NspRequestType*> rows{
        &kNspRequestType0, &kNspRequestType1, &kNspRequestType2, &kNspRequestType3,
        &kNspRequestType4, &kNspRequestType5, &kNspRequestType6};
    return rows;
}

template <> const std::vector<const CbsType*>& EnumRows<CbsType>()
{
    static const std::vector<const CbsType*> rows{&kCbsType0, &kCbsType1, &kCbsType2};
    return rows;
}

template <> const std::vector<const PimdsType*>& EnumRows<PimdsType>()
{
    static const std::vector<const PimdsType*> rows{&kPimdsType0, &kPimdsType1, &kPimdsType2,
                                                    &kPimdsType3, &kPimdsType4, &kPimdsType5};
    return rows;
}

template <> const std::vector<const PimDataVerionType*>& EnumRows<PimDataVerionType>()
{
    static const std::vector<const PimDataVerionType*> rows{&kPimDataVerionType0, &kPimDataVerionType1,
                                                            &kPimDataVerionType2, &kPimDataVerionType3,
                                                            &kPimDataVerionType4};
    return rows;
}

template <> const std::vector<const FamilyShareType*>& EnumRows<FamilyShareType>()
{
    static const std::vector<const FamilyShareType*> rows{&kFamilyShareType0, &kFamilyShareType1,
                                                          &kFamilyShareType2};
    return rows;
}

template <> const std::vector<const CloudPhotoV2InterfaceType*>& EnumRows<CloudPhotoV2InterfaceType>()
{
    static const std::vector<const CloudPhotoV2InterfaceType*> rows{
        &kCloudPhotoV2InterfaceType0,  &kCloudPhotoV2InterfaceType1,  &kCloudPhotoV2InterfaceType2,
        &kCloudPhotoV2InterfaceType3,  &kCloudPhotoV2InterfaceType4,  &kCloudPhotoV2InterfaceType5,
        &kCloudPhotoV2InterfaceType6,  &kCloudPhotoV2InterfaceType7,  &kCloudPhotoV2InterfaceType8,
        &kCloudPhotoV2InterfaceType9,  &kCloudPhotoV2InterfaceType10, &kCloudPhotoV2InterfaceType11,
        &kCloudPhotoV2InterfaceType12, &kCloudPhotoV2InterfaceType13, &kCloudPhotoV2InterfaceType14,
        &kCloudPhotoV2InterfaceType15, &kCloudPhotoV2InterfaceType16, &kCloudPhotoV2InterfaceType17,
        &kCloudPhotoV2InterfaceType18, &kCloudPhotoV2InterfaceType19};
    return rows;
}

template <> const std::vector<const CloudPhotoInterfaceType*>& EnumRows<CloudPhotoInterfaceType>()
{
    static const std::vector<const CloudPhotoInterfaceType*> rows{
        &kCloudPhotoInterfaceType0,  &kCloudPhotoInterfaceType1,  &kCloudPhotoInterfaceType2,
        &kCloudPhotoInterfaceType3,  &kCloudPhotoInterfaceType4,  &kCloudPhotoInterfaceType5,
        &kCloudPhotoInterfaceType6,  &kCloudPhotoInterfaceType7,  &kCloudPhotoInterfaceType8,
        &kCloudPhotoInterfaceType9,  &kCloudPhotoInterfaceType10, &kCloudPhotoInterfaceType11,
        &kCloudPhotoInterfaceType12, &kCloudPhotoInterfaceType13, &kCloudPhotoInterfaceType14,
        &kCloudPhotoInterfaceType15, &kCloudPhotoInterfaceType16, &kCloudPhotoInterfaceType17,
        &kCloudPhotoInterfaceType18, &kCloudPhotoInterfaceType19, &kCloudPhotoInterfaceType20,
        &kCloudPhotoInterfaceType21, &kCloudPhotoInterfaceType22, &kCloudPhotoInterfaceType23,
        &kCloudPhotoInterfaceType24, &kCloudPhotoInterfaceType25, &kCloudPhotoInterfaceType26,
        &kCloudPhotoInterfaceType27, &kCloudPhotoInterfaceType28, &kCloudPhotoInterfaceType29};
    return rows;
}

template <> const std::vector<const CloudPhotoRequestType*>& EnumRows<CloudPhotoRequestType>()
{
    static const std::vector<const CloudPhotoRequestType*> rows{
        &kCloudPhotoRequestType0, &kCloudPhotoRequestType1, &kCloudPhotoRequestType2,
        &kCloudPhotoRequestType3, &kCloudPhotoRequestType4, &kCloudPhotoRequestType5,
        &kCloudPhotoRequestType6};
    return rows;
}

template <> const std::vector<const DriveRequestType*>& EnumRows<DriveRequestType>()
{
    static const std::vector<const DriveRequestType*> rows{
        &kDriveRequestType0, &kDriveRequestType1, &kDriveRequestType2,  &kDriveRequestType3,
        &kDriveRequestType4, &kDriveRequestType5, &kDriveRequestType6,  &kDriveRequestType7,
        &kDriveRequestType8, &kDriveRequestType9, &kDriveRequestType10, &kDriveRequestType11,
        &kDriveRequestType12};
    return rows;
}

template <> const std::vector<const SyncDriveType*>& EnumRows<SyncDriveType>()
{
    static const std::vector<const SyncDriveType*> rows{&kSyncDriveType0};
    return rows;
}

template <> const std::vector<const BusinessType*>& EnumRows<BusinessType>()
{
    static const std::vector<const BusinessType*> rows{&kBusinessType0};
    return rows;
}

template <> const std::vector<const BasicRequestType*>& EnumRows<BasicRequestType>()
{
    static const std::vector<const BasicRequestType*> rows{&kBasicRequestType0};
    return rows;
}

template <> const std::vector<const PortalRequestType*>& EnumRows<PortalRequestType>()
{
    static const std::vector<const PortalRequestType*> rows{&kPortalRequestType0};
    return rows;
}

template <> const std::vector<const PortalInferfaceType*>& EnumRows<PortalInferfaceType>()
{
    static const std::vector<const PortalInferfaceType*> rows{
        &kPortalInferfaceType0, &kPortalInferfaceType1, &kPortalInferfaceType2, &kPortalInferfaceType3,
        &kPortalInferfaceType4, &kPortalInferfaceType5, &kPortalInferfaceType6};
    return rows;
}

template <> const std::vector<const BasicType*>& EnumRows<BasicType>()
{
    static const std::vector<const BasicType*> rows{&kBasicType10204, &kBasicType10205, &kBasicType10206,
                                                    &kBasicType10207, &kBasicType10208, &kBasicType10209,
                                                    &kBasicType10210, &kBasicType10211, &kBasicType10212};
    return rows;
}

template <> const std::vector<const OperateBasicEventType*>& EnumRows<OperateBasicEventType>()
{
    static const std::vector<const OperateBasicEventType*> rows{
        &kOperateBasicEventTypeMinus1, &kOperateBasicEventType0,   &kOperateBasicEventType1,
        &kOperateBasicEventType2,      &kOperateBasicEventType3,   &kOperateBasicEventType4,
        &kOperateBasicEventType5,      &kOperateBasicEventType6,   &kOperateBasicEventType7,
        &kOperateBasicEventType8,      &kOperateBasicEventType9,   &kOperateBasicEventType10,
        &kOperateBasicEventType11,     &kOperateBasicEventType12,  &kOperateBasicEventType13,
        &kOperateBasicEventType14,     &kOperateBasicEventType15,  &kOperateBasicEventType16,
        &kOperateBasicEventType17,     &kOperateBasicEventType18,  &kOperateBasicEventType19,
        &kOperateBasicEventType20,     &kOperateBasicEventType21,  &kOperateBasicEventType22,
        &kOperateBasicEventType23,     &kOperateBasicEventType24,  &kOperateBasicEventType25,
        &kOperateBasicEventType26,     &kOperateBasicEventType27,  &kOperateBasicEventType28,
        &kOperateBasicEventType29,     &kOperateBasicEventType30,  &kOperateBasicEventType31,
        &kOperateBasicEventType32,     &kOperateBasicEventType33,  &kOperateBasicEventType34,
        &kOperateBasicEventType35,     &kOperateBasicEventType36,  &kOperateBasicEventType37,
        &kOperateBasicEventType38,     &kOperateBasicEventType39,  &kOperateBasicEventType40,
        &kOperateBasicEventType41,     &kOperateBasicEventType42,  &kOperateBasicEventType43,
        &kOperateBasicEventType44,     &kOperateBasicEventType45,  &kOperateBasicEventType46,
        &kOperateBasicEventType47,     &kOperateBasicEventType48,  &kOperateBasicEventType49,
        &kOperateBasicEventType50,     &kOperateBasicEventType51,  &kOperateBasicEventType52,
        &kOperateBasicEventType53,     &kOperateBasicEventType54,  &kOperateBasicEventType55,
        &kOperateBasicEventType56,     &kOperateBasicEventType57,  &kOperateBasicEventType58,
        &kOperateBasicEventType59,     &kOperateBasicEventType60,  &kOperateBasicEventType61,
        &kOperateBasicEventType62,     &kOperateBasicEventType63,  &kOperateBasicEventType64,
        &kOperateBasicEventType65,     &kOperateBasicEventType66,  &kOperateBasicEventType67,
        &kOperateBasicEventType68,     &kOperateBasicEventType69,  &kOperateBasicEventType70,
        &kOperateBasicEventType71,     &kOperateBasicEventType72,  &kOperateBasicEventType73,
        &kOperateBasicEventType74,     &kOperateBasicEventType75,  &kOperateBasicEventType76,
        &kOperateBasicEventType77,     &kOperateBasicEventType78,  &kOperateBasicEventType79,
        &kOperateBasicEventType80,     &kOperateBasicEventType81,  &kOperateBasicEventType82,
        &kOperateBasicEventType83,     &kOperateBasicEventType84,  &kOperateBasicEventType85,
        &kOperateBasicEventType86,     &kOperateBasicEventType87,  &kOperateBasicEventType88,
        &kOperateBasicEventType89,     &kOperateBasicEventType90,  &kOperateBasicEventType91,
        &kOperateBasicEventType92,     &kOperateBasicEventType93,  &kOperateBasicEventType94,
        &kOperateBasicEventType95,     &kOperateBasicEventType96,  &kOperateBasicEventType97,
        &kOperateBasicEventType98,     &kOperateBasicEventType99,  &kOperateBasicEventType100,
        &kOperateBasicEventType101,    &kOperateBasicEventType102, &kOperateBasicEventType103,
        &kOperateBasicEventType104,    &kOperateBasicEventType105, &kOperateBasicEventType106,
        &kOperateBasicEventType107,    &kOperateBasicEventType108, &kOperateBasicEventType109,
        &kOperateBasicEventType110,    &kOperateBasicEventType111, &kOperateBasicEventType112,
        &kOperateBasicEventType113,    &kOperateBasicEventType114, &kOperateBasicEventType115,
        &kOperateBasicEventType116,    &kOperateBasicEventType117, &kOperateBasicEventType118,
        &kOperateBasicEventType119,    &kOperateBasicEventType120, &kOperateBasicEventType121,
        &kOperateBasicEventType122};
    return rows;
}

template <> const std::vector<const OperateFileTranslateEventType*>& EnumRows<OperateFileTranslateEventType>()
{
    static const std::vector<const OperateFileTranslateEventType*> rows{
        &kOperateFileTranslateEventType123, &kOperateFileTranslateEventType124,
        &kOperateFileTranslateEventType125, &kOperateFileTranslateEventType126,
        &kOperateFileTranslateEventType127, &kOperateFileTranslateEventType128,
        &kOperateFileTranslateEventType129, &kOperateFileTranslateEventType130,
        &kOperateFileTranslateEventType131};
    return rows;
}

template <> const std::vector<const OperateSwitchPageEventType*>& EnumRows<OperateSwitchPageEventType>()
{
    static const std::vector<const OperateSwitchPageEventType*> rows{
        &kOperateSwitchPageEventType132, &kOperateSwitchPageEventType133, &kOperateSwitchPageEventType134,
        &kOperateSwitchPageEventType135, &kOperateSwitchPageEventType136, &kOperateSwitchPageEventType137,
        &kOperateSwitchPageEventType138, &kOperateSwitchPageEventType139, &kOperateSwitchPageEventType140,
        &kOperateSwitchPageEventType141, &kOperateSwitchPageEventType142, &kOperateSwitchPageEventType143,
        &kOperateSwitchPageEventType144, &kOperateSwitchPageEventType145, &kOperateSwitchPageEventType146,
        &kOperateSwitchPageEventType147, &kOperateSwitchPageEventType148, &kOperateSwitchPageEventType149,
        &kOperateSwitchPageEventType150, &kOperateSwitchPageEventType151, &kOperateSwitchPageEventType152,
        &kOperateSwitchPageEventType153, &kOperateSwitchPageEventType154, &kOperateSwitchPageEventType155,
        &kOperateSwitchPageEventType156, &kOperateSwitchPageEventType157, &kOperateSwitchPageEventType158,
        &kOperateSwitchPageEventType159, &kOperateSwitchPageEventType160, &kOperateSwitchPageEventType161,
        &kOperateSwitchPageEventType162, &kOperateSwitchPageEventType163, &kOperateSwitchPageEventType164,
        &kOperateSwitchPageEventType165, &kOperateSwitchPageEventType166, &kOperateSwitchPageEventType167,
        &kOperateSwitchPageEventType168, &kOperateSwitchPageEventType169, &kOperateSwitchPageEventType170,
        &kOperateSwitchPageEventType171, &kOperateSwitchPageEventType172, &kOperateSwitchPageEventType173,
        &kOperateSwitchPageEventType174};
    return rows;
}

template <> const std::vector<const OperateSwitchModuleEventType*>& EnumRows<OperateSwitchModuleEventType>()
{
    static const std::vector<const OperateSwitchModuleEventType*> rows{
        &kOperateSwitchModuleEventType175, &kOperateSwitchModuleEventType176,
        &kOperateSwitchModuleEventType177, &kOperateSwitchModuleEventType178,
        &kOperateSwitchModuleEventType179, &kOperateSwitchModuleEventType180,
        &kOperateSwitchModuleEventType181, &kOperateSwitchModuleEventType182,
        &kOperateSwitchModuleEventType183, &kOperateSwitchModuleEventType184,
        &kOperateSwitchModuleEventType185, &kOperateSwitchModuleEventType186,
        &kOperateSwitchModuleEventType187, &kOperateSwitchModuleEventType188,
        &kOperateSwitchModuleEventType189, &kOperateSwitchModuleEventType190};
    return rows;
}

template <> const std::vector<const OperateSpecialEventType*>& EnumRows<OperateSpecialEventType>()
{
    static const std::vector<const OperateSpecialEventType*> rows{
        &kOperateSpecialEventType191, &kOperateSpecialEventType192, &kOperateSpecialEventType193,
        &kOperateSpecialEventType194, &kOperateSpecialEventType195, &kOperateSpecialEventType196,
        &kOperateSpecialEventType197, &kOperateSpecialEventType198, &kOperateSpecialEventType199,
        &kOperateSpecialEventType200, &kOperateSpecialEventType201, &kOperateSpecialEventType202,
        &kOperateSpecialEventType203, &kOperateSpecialEventType204};
    return rows;
}

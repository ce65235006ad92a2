// The cloud requests and their log codes. Rows have no names of their own:
// the system speaks of "PimdsType 3", so each constant is named after its
// enumeration and id (kPimdsType3; negative ids read kUpLogTypeMinus1).
// A request row carries its interface path under "InterfaceDescriptionType;"
// and its log row under "BaseUplogType"; the comment gives the path.
#pragma once

#include "foundation/enum_types.h"

// clang-format off

// AnyBaseCmd: command codes, the code a trace identifier carries.
extern const AnyBaseCmd kAnyBaseCmd4100; // 图库其他操作
extern const AnyBaseCmd kAnyBaseCmd2114; // 图库操作
extern const AnyBaseCmd kAnyBaseCmd2116; // 图库操作
extern const AnyBaseCmd kAnyBaseCmd10203; // pc客户端操作
extern const AnyBaseCmd kAnyBaseCmd10301; // 用户反馈
extern const AnyBaseCmd kAnyBaseCmd10401; // 下载管理
extern const AnyBaseCmd kAnyBaseCmd10501; // 下载管理
extern const AnyBaseCmd kAnyBaseCmd10601; // 设置
extern const AnyBaseCmd kAnyBaseCmd10701; // 联系人
extern const AnyBaseCmd kAnyBaseCmd10901; // 备忘录
extern const AnyBaseCmd kAnyBaseCmd11001; // 录音
extern const AnyBaseCmd kAnyBaseCmd11101; // 云盘
extern const AnyBaseCmd kAnyBaseCmd11201; // 查找手机
extern const AnyBaseCmd kAnyBaseCmd11301; // 关于
extern const AnyBaseCmd kAnyBaseCmd11401; // 空间管理
extern const AnyBaseCmd kAnyBaseCmd11501; // 升级安装
extern const AnyBaseCmd kAnyBaseCmd11601; // 家庭共享
extern const AnyBaseCmd kAnyBaseCmd12001; // 泽芙拉云盘引导页
extern const AnyBaseCmd kAnyBaseCmd12004; // 支付
extern const AnyBaseCmd kAnyBaseCmd12003; // 其它

// UpLogType: log codes. A row with a command is traced under the command's id.
extern const UpLogType kUpLogType12005; // 设置中开启
extern const UpLogType kUpLogType12007; // 进程间通讯
extern const UpLogType kUpLogType12009; // 取消订阅
extern const UpLogType kUpLogTypeMinus2;
extern const UpLogType kUpLogTypeMinus1; // 无操作
extern const UpLogType kUpLogType0; // 任务完成
extern const UpLogType kUpLogType2; // PC客户端用户使用电脑的版本序列号
extern const UpLogType kUpLogType4; // PC注销
extern const UpLogType kUpLogType6; // PC客户端操作暂停
extern const UpLogType kUpLogType8; // PC客户端操作取消
extern const UpLogType kUpLogType10; // PC客户端操作继续
extern const UpLogType kUpLogType12; // PC客户端操作下载全部取消
extern const UpLogType kUpLogType14; // PC客户端操作上传全部取消
extern const UpLogType kUpLogType16; // PC客户端操作全部暂停
extern const UpLogType kUpLogType18; // PC客户端操作全部继续
extern const UpLogType kUpLogType20; // PC客户端调整到下载目录操作
extern const UpLogType kUpLogType22; // 上线变离线状态变化（刚登陆成功不要）
extern const UpLogType kUpLogType24; // 离线变上线状态变化
extern const UpLogType kUpLogType26; // 客户端退出
extern const UpLogType kUpLogType28; // 客户端最小化
extern const UpLogType kUpLogType30; // 客户端还原
extern const UpLogType kUpLogType32; // 客户端客户端初始化
extern const UpLogType kUpLogType34; // 客户端休眠
extern const UpLogType kUpLogType36; // 客户端恢复
extern const UpLogType kUpLogType38; // 客户端浏览器地址变更
extern const UpLogType kUpLogType40; // 模块切换
extern const UpLogType kUpLogType42; // 传输管理
extern const UpLogType kUpLogType44; // 设置
extern const UpLogType kUpLogType46; // 开机自启
extern const UpLogType kUpLogType48; // 自动检测更新
extern const UpLogType kUpLogType50; // 检测更新
extern const UpLogType kUpLogType52; // 加入用户体验计划
extern const UpLogType kUpLogType54; // 同时上传任务数修改
extern const UpLogType kUpLogType56; // 同时下载任务数修改
extern const UpLogType kUpLogType58; // 修改缓存路径
extern const UpLogType kUpLogType60; // 我的泽芙拉账号
extern const UpLogType kUpLogType62; // 前往云空间网站
extern const UpLogType kUpLogType64; // 关于
extern const UpLogType kUpLogType66; // 在线帮助
extern const UpLogType kUpLogType68; // 问题反馈
extern const UpLogType kUpLogType70; // 协议签署
extern const UpLogType kUpLogType72; // PC管家登录
extern const UpLogType kUpLogType74; // 图库上传
extern const UpLogType kUpLogType76; // 图库时刻表
extern const UpLogType kUpLogType78; // 批量选择日期分组图片
extern const UpLogType kUpLogType80; // 图库详情全屏
extern const UpLogType kUpLogType82; // 图库下载
extern const UpLogType kUpLogType84; // 图库下载文件信息获取
extern const UpLogType kUpLogType3115; // 联系人导出
extern const UpLogType kUpLogType4100; // 云相册其他操作
extern const UpLogType kUpLogType4101; // 查询相册及文件
extern const UpLogType kUpLogType4102; // 删除相册及文件
extern const UpLogType kUpLogType4103; // 清空相册及文件
extern const UpLogType kUpLogType4105; // 查询回收站
extern const UpLogType kUpLogType4106; // 删除回收站
extern const UpLogType kUpLogType4107; // 清空回收站
extern const UpLogType kUpLogType4108; // 回收站恢复
extern const UpLogType kUpLogType4113; // 视频播放
extern const UpLogType kUpLogType4114; // 视频暂停
extern const UpLogType kUpLogType4115; // 视频恢复
extern const UpLogType kUpLogType4116; // 视频结束
extern const UpLogType kUpLogType4118; // 图库日期分组选择
extern const UpLogType kUpLogType4120; // 图库日期分组选择
extern const UpLogType kUpLogType4122; // 取消选中
extern const UpLogType kUpLogType4124; // 全部下载
extern const UpLogType kUpLogType4126; // 图片移动
extern const UpLogType kUpLogType4128; // 日期分组选择
extern const UpLogType kUpLogType4130; // 每行展示个数调整
extern const UpLogType kUpLogType4132; // 图片收藏
extern const UpLogType kUpLogType4134; // 图片全屏
extern const UpLogType kUpLogType4136; // 图片还原
extern const UpLogType kUpLogType4138; // 图片属性
extern const UpLogType kUpLogType4140; // 图片旋转
extern const UpLogType kUpLogType4142; // 连拍详情展示
extern const UpLogType kUpLogType4144; // 图片切换
extern const UpLogType kUpLogType4146; // 新建相册
extern const UpLogType kUpLogType4148; // 相册重命名
extern const UpLogType kUpLogType4150; // 相册删除
extern const UpLogType kUpLogType4152; // 相册详情查看
extern const UpLogType kUpLogType4154; // 相册详情返回
extern const UpLogType kUpLogType4156; // 图片增量更新
extern const UpLogType kUpLogType4158; // 图片全量更新
extern const UpLogType kUpLogType4160; // 图片服务器信息
extern const UpLogType kUpLogType5001; // 云盘上传
extern const UpLogType kUpLogType5002; // 云盘下载
extern const UpLogType kUpLogType5003; // 云盘查询文件
extern const UpLogType kUpLogType5004; // 云盘新建文件夹
extern const UpLogType kUpLogType9104; // 录音播放
extern const UpLogType kUpLogType9107; // 录音结束
extern const UpLogType kUpLogType9105; // 录音暂停
extern const UpLogType kUpLogType9106; // 录音恢复
extern const UpLogType kUpLogType9103; // 录音下载
extern const UpLogType kUpLogType10002; // pc客户端登出
extern const UpLogType kUpLogType10004; // 客户端空间查询
extern const UpLogType kUpLogType10005; // 刷新AccessToken
extern const UpLogType kUpLogType10006; // 查询配置项
extern const UpLogType kUpLogType10007; // 鉴权码获取AT
extern const UpLogType kUpLogType10201; // 安装
extern const UpLogType kUpLogType10202; // 客户端版本升级
extern const UpLogType kUpLogType10204; // 设备注册
extern const UpLogType kUpLogType10205; // 设备取消注册
extern const UpLogType kUpLogType10206; // 获取设备列表
extern const UpLogType kUpLogType10207; // 获取最后一次操作记录
extern const UpLogType kUpLogType10208; // 用户注册信息查询
extern const UpLogType kUpLogType10209; // 系统配置接口
extern const UpLogType kUpLogType10210; // 上报设备模块开关
extern const UpLogType kUpLogType10211; // 更改用户状态
extern const UpLogType kUpLogType20120; // BI日志上传
extern const UpLogType kUpLogType30101; // 图库同步状态
extern const UpLogType kUpLogType30102; // 图库同步服务器错误
extern const UpLogType kUpLogType30103; // 图库同步本地操作
extern const UpLogType kUpLogType40001; // Push的相关操作
extern const UpLogType kUpLogType30200; // 简报操作
extern const UpLogType kUpLogType30201; // 获取云端简报
extern const UpLogType kUpLogType30202; // 简报服务器错误
extern const UpLogType kUpLogType30203; // 简报本地操作错误
extern const UpLogType kUpLogType30204; // 简报获取详细信息
extern const UpLogType kUpLogType30205; // 获取服务器时间
extern const UpLogType kUpLogType30207; // 客户端安全检查
extern const UpLogType kUpLogType50001; // 预埋OM与状态码匹配
extern const UpLogType kUpLogType60000; // 初始化Drive加解密的密钥
extern const UpLogType kUpLogType60001; // 初始化Drive获取上传文件分片信息
extern const UpLogType kUpLogType60002; // 获取上传分片文件地址
extern const UpLogType kUpLogType60003; // Drive云端创建文件夹
extern const UpLogType kUpLogType60004; // 根据FileId获取文件夹内的所有文件信息
extern const UpLogType kUpLogType60005; // 根据FileId获取单个文件的部分信息
extern const UpLogType kUpLogType60006; // 根据FileId获取单个文件的分片信息
extern const UpLogType kUpLogType60007; // 获取分片下载地址
extern const UpLogType kUpLogType60008; // 获取密钥对象
extern const UpLogType kUpLogType60009; // Drive上传完成报送服务端信息
extern const UpLogType kUpLogType60010; // Drive分片上传完成报送服务端元数据信息
extern const UpLogType kUpLogType60011; // Drive下载任务完成
extern const UpLogType kUpLogType60012; // Drive上传任务完成
extern const UpLogType kUpLogType60014; // Drive数据切割后生成FileId
extern const UpLogType kUpLogType60015; // Portal引导PC下载获取FileIds
extern const UpLogType kUpLogType60016; // 图库版本接口
extern const UpLogType kUpLogType60017; // 获取文件元数据信息
extern const UpLogType kUpLogType60018; // 批量接口获取下载缩略图地址
extern const UpLogType kUpLogType60019; // 获取LCD图下载地址
extern const UpLogType kUpLogType60020; // 视频在线播放下载地址
extern const UpLogType kUpLogType60021; // 获取文件下载信息
extern const UpLogType kUpLogType60022; // 获取云相册秘钥信息
extern const UpLogType kUpLogType60023; // 更新Drive云端Efek
extern const UpLogType kUpLogType60024; // 更新CloudPhoto云端Efek

// NspRequestType
extern const NspRequestType kNspRequestType0; // no path
extern const NspRequestType kNspRequestType1; // no path
extern const NspRequestType kNspRequestType2; // no path
extern const NspRequestType kNspRequestType3; // no path
extern const NspRequestType kNspRequestType4; // no path
extern const NspRequestType kNspRequestType5; // no path
extern const NspRequestType kNspRequestType6; // no path

// CbsType
extern const CbsType kCbsType0; // /CloudBackup/ClientServlet
extern const CbsType kCbsType1; // /CloudBackup/ClientServlet
extern const CbsType kCbsType2; // /CloudBackup/ClientServlet

// PimdsType
extern const PimdsType kPimdsType0; // /Statistic/Contact
extern const PimdsType kPimdsType1; // /Statistic/Calendar
extern const PimdsType kPimdsType2; // /Statistic/Wlan
extern const PimdsType kPimdsType3; // /Statistic/Notepad
extern const PimdsType kPimdsType4; // /Statistic/Browser
extern const PimdsType kPimdsType5; // /recyclebin/query

// PimDataVerionType
extern const PimDataVerionType kPimDataVerionType0; // /dataSync/v1/service/1000/about?fields=dataVersion,kinds,maxBatchNumber,status
extern const PimDataVerionType kPimDataVerionType1; // /dataSync/v1/service/1001/about?fields=dataVersion,kinds,maxBatchNumber,status
extern const PimDataVerionType kPimDataVerionType2; // /dataSync/v1/service/1002/about?fields=dataVersion,kinds,maxBatchNumber,status
extern const PimDataVerionType kPimDataVerionType3; // /dataSync/v1/service/1004/about?fields=dataVersion,kinds,maxBatchNumber,status
extern const PimDataVerionType kPimDataVerionType4; // /dataSync/v1/service/1005/about?fields=dataVersion,kinds,maxBatchNumber,status

// FamilyShareType
extern const FamilyShareType kFamilyShareType0; // /rest.php
extern const FamilyShareType kFamilyShareType1; // /user/v1/quota/drive
extern const FamilyShareType kFamilyShareType2; // /rest.php

// CloudPhotoV2InterfaceType
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType0; // /cloudPhoto/v1/about
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType1; // /cloudPhoto/v1/changes/getStartCursor
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType2; // /cloudPhoto/v1/changes
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType3; // /cloudPhoto/v1/albums
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType4; // /cloudPhoto/v1/lock
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType5; // /cloudPhoto/v1/lock
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType6; // /cloudPhoto/v1/media
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType7; // /cloudPhoto/v1/batch
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType8; // /cloudPhoto/v1/albums
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType9; // /cloudPhoto/v1/albums
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType10; // /cloudPhoto/v1/albums
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType11; // /cloudPhoto/v1/media
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType12; // /cloudPhoto/v1/media
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType13; // /cloudPhoto/v1/media
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType14; // empty path
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType15; // empty path
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType16; // empty path
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType17; // /cloudPhoto/v1/changes/subscribe
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType18; // /cloudPhoto/v1/channels/stop
extern const CloudPhotoV2InterfaceType kCloudPhotoV2InterfaceType19; // /cloudPhoto/v1/changes/notify

// CloudPhotoInterfaceType
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType0; // /JPJX/CloudPhotoRecycle
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType1; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType2; // /JPJX/CloudPhoto4Web
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType3; // /JPJX/BaseAPI
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType4; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType5; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType6; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType7; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType8; // /JPJX/CloudPhoto4Web
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType9; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType10; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType11; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType12; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType13; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType14; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType15; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType16; // /JPJX/BaseAPI
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType17; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType18; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType19; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType20; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType21; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType22; // /JPJX/CloudPhoto
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType23; // /JPJX/CloudPhotoRecycle
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType24; // /JPJX/CloudPhotoRecycle
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType25; // /JPJX/CloudPhotoRecycle
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType26; // /JPJX/CloudPhoto4Web
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType27; // /JPJX/CloudPhoto/querymodifyinfos
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType28; // /JPJX/CloudPhoto/cycle/querymodifyinfos
extern const CloudPhotoInterfaceType kCloudPhotoInterfaceType29; // /JPJX/CloudPhoto

// CloudPhotoRequestType
extern const CloudPhotoRequestType kCloudPhotoRequestType0; // /cloudPhoto/v1/about
extern const CloudPhotoRequestType kCloudPhotoRequestType1; // /cloudPhoto/v1/media/{0}?fields=attachments,status
extern const CloudPhotoRequestType kCloudPhotoRequestType2; // /cloudPhoto/v1/media/{0}?fields=attachments,smallThumbnailDownloadLink,thumbnailDownloadLink&thumbnailInfo=true
extern const CloudPhotoRequestType kCloudPhotoRequestType3; // /cloudPhoto/v1/batch
extern const CloudPhotoRequestType kCloudPhotoRequestType4; // /cloudPhoto/v1/media/{0}?fields=signedDownloadLink
extern const CloudPhotoRequestType kCloudPhotoRequestType5; // /cloudPhoto/v1/media/{0}?fields=id,fileName,albumId,size
extern const CloudPhotoRequestType kCloudPhotoRequestType6; // /cloudPhoto/v1/media/{0}/assets/{1}/revisions/{2}

// DriveRequestType
extern const DriveRequestType kDriveRequestType0; // empty path
extern const DriveRequestType kDriveRequestType1; // /drive/v1/objects/{0}/obsAddress?
extern const DriveRequestType kDriveRequestType2; // /drive/v1/files
extern const DriveRequestType kDriveRequestType3; // empty path
extern const DriveRequestType kDriveRequestType4; // empty path
extern const DriveRequestType kDriveRequestType5; // empty path
extern const DriveRequestType kDriveRequestType6; // empty path
extern const DriveRequestType kDriveRequestType7; // /common/v1/keys/publicKey?tempKeyEncType=EC_256
extern const DriveRequestType kDriveRequestType8; // empty path
extern const DriveRequestType kDriveRequestType9; // /drive/v1/files/createComplete?fields=id,fileName,category,mimeType,parentFolder,contentVersion
extern const DriveRequestType kDriveRequestType10; // empty path
extern const DriveRequestType kDriveRequestType11; // /drive/v1/files/generateIds?count=1
extern const DriveRequestType kDriveRequestType12; // /drive/v1/files/{0}/assets/{1}/revisions/{2}

// SyncDriveType
extern const SyncDriveType kSyncDriveType0; // /drive/v1/channels/stop

// BusinessType
extern const BusinessType kBusinessType0; // /cloudpay/user

// BasicRequestType
extern const BasicRequestType kBasicRequestType0; // empty path

// PortalRequestType
extern const PortalRequestType kPortalRequestType0; // /pcclient/queryDownloadTask

// PortalInferfaceType
extern const PortalInferfaceType kPortalInferfaceType0; // /pcclient/querytask
extern const PortalInferfaceType kPortalInferfaceType1; // /pcclient/getproperties
extern const PortalInferfaceType kPortalInferfaceType2; // /pcclient/pushlog
extern const PortalInferfaceType kPortalInferfaceType3; // /pcclient/refreshtoken
extern const PortalInferfaceType kPortalInferfaceType4; // /pcclient/logout
extern const PortalInferfaceType kPortalInferfaceType5; // /contact/exportContacts
extern const PortalInferfaceType kPortalInferfaceType6; // /pcclient/getAccessTokenByCode

// BasicType
extern const BasicType kBasicType10204; // /userDeviceRegister
extern const BasicType kBasicType10205; // /userDeviceUnRegister
extern const BasicType kBasicType10206; // /getUserDeviceInfo
extern const BasicType kBasicType10207; // /getLastOperationRecord
extern const BasicType kBasicType10208; // /getUserRegister
extern const BasicType kBasicType10209; // /sysConfInit
extern const BasicType kBasicType10210; // /sysConfRefresh
extern const BasicType kBasicType10211; // /postDeviceSwitch
extern const BasicType kBasicType10212; // /changeUserStatus

// clang-format on

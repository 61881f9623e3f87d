<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>BackupLine</name>
    <message>
        <source>账目备份：还没有</source>
        <translation>Backup: none yet</translation>
    </message>
    <message>
        <source>账目备份：今天</source>
        <translation>Backup: today</translation>
    </message>
    <message>
        <source>账目备份：%1 天前</source>
        <translation>Backup: %1 days ago</translation>
    </message>
    <message>
        <source>正在备份账目，请稍候……</source>
        <translation>Backing up the books, please wait…</translation>
    </message>
    <message>
        <source>不等了（Esc）</source>
        <translation>Don&apos;t wait (Esc)</translation>
    </message>
</context>
<context>
    <name>BillLines</name>
    <message>
        <source>正在修改商品行，“%1”没有录入。请重新录入。</source>
        <translation>A line is being changed, so &quot;%1&quot; was not rung. Please enter it again.</translation>
    </message>
    <message>
        <source>没有找到条码为：%1的商品</source>
        <translation>No goods with the barcode %1</translation>
    </message>
    <message>
        <source>没有找到：%1的商品</source>
        <translation>Nothing found for %1</translation>
    </message>
    <message>
        <source>没有商品，无需删除！</source>
        <translation>There are no goods to delete.</translation>
    </message>
    <message>
        <source>没有可删除的行：已确认的商品不能单独删除，只能整单撤消。</source>
        <translation>No line can be deleted: confirmed lines can only be voided with the whole bill.</translation>
    </message>
    <message>
        <source>%1的库存按本机的账是 %2。现在没有联网，照卖。</source>
        <translation>By this till&apos;s books %1 has a stock of %2. The server is away now, so it is sold all the same.</translation>
    </message>
</context>
<context>
    <name>BillModel</name>
    <message>
        <source>序号</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>条码货号</source>
        <translation>Barcode/item no.</translation>
    </message>
    <message>
        <source>商品名称</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>单价</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>数量</source>
        <translation>Qty</translation>
    </message>
    <message>
        <source>折扣</source>
        <translation>Disc.</translation>
    </message>
    <message>
        <source>金额</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>现有库存</source>
        <translation>In stock</translation>
    </message>
    <message>
        <source>产地</source>
        <translation>Origin</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>编码</source>
        <translation>Code</translation>
    </message>
</context>
<context>
    <name>CheckedField</name>
    <message>
        <source>注意</source>
        <translation>Please note</translation>
    </message>
</context>
<context>
    <name>Checkout</name>
    <message>
        <source>没有商品，无需结账！</source>
        <translation>There are no goods to settle.</translation>
    </message>
    <message>
        <source>%1
文件已经放好，继续收款吗？选“否”将退出程序。</source>
        <translation>%1
The file is back in its place. Go on with the payment? &quot;No&quot; ends the program.</translation>
    </message>
    <message>
        <source>应收金额太大，不能结账。</source>
        <translation>The amount due is too large to settle.</translation>
    </message>
    <message>
        <source>保存单据出错，请重新录入本单！</source>
        <translation>The bill could not be saved. Please ring it again.</translation>
    </message>
    <message>
        <source>
储值卡 %1 已扣款 %2 元。</source>
        <translation>
Stored-value card %1 was charged %2 yuan.</translation>
    </message>
    <message>
        <source>不能开始下一单：%1
排除原因后再试一次吗？选“否”将退出程序。</source>
        <translation>The next bill cannot be begun: %1
Try again once the cause is removed? &quot;No&quot; ends the program.</translation>
    </message>
    <message>
        <source>操作员“%1”已被删除，不能再开单。</source>
        <translation>Operator &quot;%1&quot; has been deleted and can&apos;t begin another bill.</translation>
    </message>
    <message>
        <source>日期或时间错误！将退出销售，请与管理员联系</source>
        <translation>The date or time is wrong. The sale is closed; please ask the administrator.</translation>
    </message>
</context>
<context>
    <name>ColoursPage</name>
    <message>
        <source>蓝底（常用）</source>
        <translation>Blue (usual)</translation>
    </message>
    <message>
        <source>深灰底</source>
        <translation>Dark grey</translation>
    </message>
    <message>
        <source>浅色底</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>收银画面：</source>
        <translation>Sale screen:</translation>
    </message>
    <message>
        <source>大标题</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>次行信息：流水号 1，收银员 1</source>
        <translation>Second line: bill 1, cashier 1</translation>
    </message>
    <message>
        <source>应收 16.80&#x3000;实收 20.00&#x3000;找零 3.20</source>
        <translation>Due 16.80&#x3000;Received 20.00&#x3000;Change 3.20</translation>
    </message>
    <message>
        <source>会员卡 880001&#x3000;积分 320</source>
        <translation>Member 880001&#x3000;Points 320</translation>
    </message>
    <message>
        <source>以后可以在收银画面的功能菜单里更改每一种颜色。</source>
        <translation>Each colour can be changed later in the function menu of the sale screen.</translation>
    </message>
    <message>
        <source>颜色</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>收银画面的颜色</source>
        <translation>Colours of the sale screen</translation>
    </message>
</context>
<context>
    <name>DateField</name>
    <message>
        <source>没有“%1”这个日期！请按 2026-11-22 或 20261122 的样子输入。</source>
        <translation>There is no date &quot;%1&quot;. Please enter it like 2026-11-22 or 20261122.</translation>
    </message>
</context>
<context>
    <name>DayModel</name>
    <message>
        <source>流水号</source>
        <translation>Bill no.</translation>
    </message>
    <message>
        <source>金额</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>商品数量</source>
        <translation>Qty</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>收银员</source>
        <translation>Cashier</translation>
    </message>
</context>
<context>
    <name>DeviceTest</name>
    <message>
        <source>小票打印机</source>
        <translation>Receipt printer</translation>
    </message>
    <message>
        <source>客显</source>
        <translation>Pole display</translation>
    </message>
    <message>
        <source>钱箱</source>
        <translation>Cash drawer</translation>
    </message>
    <message>
        <source>没有设定端口，未测试</source>
        <translation>No port is set, not tested</translation>
    </message>
    <message>
        <source>测试行已送到系统打印机</source>
        <translation>A test line was sent to the system printer</translation>
    </message>
    <message>
        <source>测试行已送到 %1</source>
        <translation>A test line was sent to %1</translation>
    </message>
    <message>
        <source>没有选定客显型号，未测试</source>
        <translation>No display model is chosen, not tested</translation>
    </message>
    <message>
        <source>8888.88 已送到 %1</source>
        <translation>8888.88 was sent to %1</translation>
    </message>
    <message>
        <source>开箱信号已通过客显送到 %1</source>
        <translation>The drawer pulse was sent through the display to %1</translation>
    </message>
    <message>
        <source>开箱信号已送到 %1</source>
        <translation>The drawer pulse was sent to %1</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>测试(&amp;T)</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>打印机、钱箱和客显</source>
        <translation>Printer, drawer and display</translation>
    </message>
    <message>
        <source>插在 USB 口或并口上、不用装驱动的小票打印机选 LPT1，第二台选 LPT2；在系统里装好了驱动的选 USB。以后可以在主菜单的收银设置里更改。</source>
        <translation>A receipt printer on a USB or parallel port that needs no driver is LPT1, a second one LPT2; one whose driver is installed in the system is USB. These can be changed later in the main menu under Device settings.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Excel 表格 (.xlsx)</source>
        <translation>Excel workbook (.xlsx)</translation>
    </message>
    <message>
        <source>CSV 文件 (.csv)</source>
        <translation>CSV file (.csv)</translation>
    </message>
    <message>
        <source>导出(&amp;S)</source>
        <translation>Export (&amp;S)</translation>
    </message>
    <message>
        <source>取消(&amp;C)</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>文件夹：</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>文件名：</source>
        <translation>File name:</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>请输入文件名！</source>
        <translation>Please enter a file name.</translation>
    </message>
    <message>
        <source>文件名不能以点开头！</source>
        <translation>A file name can&apos;t begin with a dot.</translation>
    </message>
    <message>
        <source>文件名中不能有 %1 这些字符！</source>
        <translation>A file name can&apos;t contain any of %1.</translation>
    </message>
    <message>
        <source>注意</source>
        <translation>Please note</translation>
    </message>
    <message>
        <source>文件已经存在，要覆盖吗？
%1</source>
        <translation>The file is there already. Replace it?
%1</translation>
    </message>
</context>
<context>
    <name>ExportFolder</name>
    <message>
        <source>不能新建导出文件夹 %1，请检查设置和权限。</source>
        <translation>The export folder %1 can&apos;t be made. Please check the setting and the permissions.</translation>
    </message>
</context>
<context>
    <name>FigureCheck</name>
    <message>
        <source>单价是 %1 元，确定吗？</source>
        <translation>The price is %1 yuan. Is that right?</translation>
    </message>
    <message>
        <source>折扣 %1 大于 1，会比原价贵，确定吗？</source>
        <translation>A discount factor of %1 is above 1 and makes the goods dearer. Is that right?</translation>
    </message>
    <message>
        <source>现金“%1”不是数字，将按 %2 元收款。</source>
        <translation>The cash &quot;%1&quot; is not a number; %2 yuan will be taken.</translation>
    </message>
    <message>
        <source>收款不够，还差 %1 元。</source>
        <translation>%1 yuan are still missing.</translation>
    </message>
    <message>
        <source>找零有 %1 元。</source>
        <translation>The change is %1 yuan.</translation>
    </message>
    <message>
        <source>%1
确定这样收款吗？</source>
        <translation>%1
Take the payment like this?</translation>
    </message>
</context>
<context>
    <name>FileField</name>
    <message>
        <source>选择文件</source>
        <translation>Choose a file</translation>
    </message>
</context>
<context>
    <name>GoodsPage</name>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>零售价</source>
        <translation>Retail price</translation>
    </message>
    <message>
        <source>商品</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>现在没有商品的话，什么也不用填，以后再导入。条码或编码不超过 5 个字的，也作货号，收银时照它输入。</source>
        <translation>If there are no goods yet, leave everything empty and import them later. A barcode or code of up to 5 characters is the item number too, to be typed at the till.</translation>
    </message>
    <message>
        <source>选表格文件(&amp;F)</source>
        <translation>Choose a sheet (&amp;F)</translation>
    </message>
    <message>
        <source>不用表格(&amp;X)</source>
        <translation>No sheet (&amp;X)</translation>
    </message>
    <message>
        <source>商品表：</source>
        <translation>Goods sheet:</translation>
    </message>
    <message>
        <source>条码或编码</source>
        <translation>Barcode or code</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>库存</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>加入(&amp;A)</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>或者录入：</source>
        <translation>Or type in:</translation>
    </message>
    <message>
        <source>每种写完按回车键加入下面的表；在表里按回车键改，按 Delete 去掉。</source>
        <translation>Enter adds what is typed to the list below; in the list Enter changes goods and Delete takes them out.</translation>
    </message>
    <message>
        <source>%1：%2 行，开店时导入</source>
        <translation>%1: %2 lines, imported when the shop is made</translation>
    </message>
    <message>
        <source>没有选（.xlsx 或 .csv，第一行是列名）</source>
        <translation>None (.xlsx or .csv, headings in the first line)</translation>
    </message>
    <message>
        <source>%1。</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>已加入 %1。</source>
        <translation>%1 was added.</translation>
    </message>
    <message>
        <source>已加入 %1。请看一看：%2。</source>
        <translation>%1 was added. Please look at this: %2.</translation>
    </message>
</context>
<context>
    <name>HeldBills</name>
    <message>
        <source>没有商品，无需结账！</source>
        <translation>There are no goods to settle.</translation>
    </message>
    <message>
        <source>请先结束或挂起本次销售，再执行调用功能。</source>
        <translation>Please finish this sale or put it on hold first.</translation>
    </message>
    <message>
        <source>%1，已从本单中去掉。</source>
        <translation>%1 It was taken off this bill.</translation>
    </message>
    <message>
        <source>这张挂单刚刚已被别的收银机调走。</source>
        <translation>Another till has just taken this held bill up.</translation>
    </message>
    <message>
        <source>挂着这张单的收银机没有开机或没有联网，拿不过来。</source>
        <translation>The till that holds this bill is off or not connected: it can&apos;t be handed over.</translation>
    </message>
    <message>
        <source>没有等到这张挂单。它如果稍后交过来，会列在本机的挂单里。</source>
        <translation>The held bill did not come in time. If it comes later, it is among the held bills of this till.</translation>
    </message>
    <message>
        <source>没有联网，看不到别台挂的单。</source>
        <translation>The server is away: held bills of other tills cannot be shown.</translation>
    </message>
    <message>
        <source>这张挂单读不出来，请告诉店主。</source>
        <translation>This held bill cannot be read. Please tell the owner.</translation>
    </message>
</context>
<context>
    <name>Identification</name>
    <message>
        <source>密码连续错了几次，请等 %1 秒再试。</source>
        <translation>Several wrong passwords in a row. Please wait %1 seconds.</translation>
    </message>
</context>
<context>
    <name>ItemLookup</name>
    <message>
        <source>%1  货号: %2</source>
        <translation>%1  Item no.: %2</translation>
    </message>
    <message>
        <source>  库存：%1</source>
        <translation>  In stock: %1</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>%1，%2 批准</source>
        <translation>%1, approved by %2</translation>
    </message>
    <message>
        <source>号码</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>种类</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>对象</source>
        <translation>What</translation>
    </message>
    <message>
        <source>内容</source>
        <translation>Contents</translation>
    </message>
</context>
<context>
    <name>KeyCard</name>
    <message>
        <source>| 按键 | %1 |</source>
        <translation>| Key | %1 |</translation>
    </message>
    <message>
        <source># 收银员按键卡 {.card}</source>
        <translation># Keys for the cashier {.card}</translation>
    </message>
    <message>
        <source>一笔销售：扫描商品；都扫完了，在空行按 `%1`；输入收到的现金，再按 `%1`。</source>
        <translation>A sale: scan the goods; when all are scanned, press `%1` on the empty line; type the cash received and press `%1` again.</translation>
    </message>
    <message>
        <source>打错了：`%1` 删除最后一行，`%2` 撤消整单。</source>
        <translation>Something went wrong: `%1` deletes the last line, `%2` voids the bill.</translation>
    </message>
    <message>
        <source>店里改过按键的，以程序里的“帮助”为准：它在主菜单的更多功能和销售界面的功能菜单里，总是最后一项。</source>
        <translation>Where the shop has changed its keys, the program itself knows best: Help is the last entry of the further functions on the main menu and of the function menu on the sale screen.</translation>
    </message>
</context>
<context>
    <name>KeyFunction</name>
    <message>
        <source>%1(%2)：</source>
        <comment>caption of a key&apos;s box: its name and its access key</comment>
        <translation>%1 (%2):</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>录入、空行结账</source>
        <translation>Ring up, settle</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>退出销售</source>
        <translation>Leave the sale</translation>
    </message>
    <message>
        <source>结账</source>
        <translation>Settle</translation>
    </message>
    <message>
        <source>会员卡</source>
        <translation>Member</translation>
    </message>
    <message>
        <source>刷会员卡</source>
        <translation>Attach a member</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>删除最后一行</source>
        <translation>Delete the last line</translation>
    </message>
    <message>
        <source>挂起</source>
        <translation>Hold</translation>
    </message>
    <message>
        <source>挂单</source>
        <translation>Hold the bill</translation>
    </message>
    <message>
        <source>增加新会员</source>
        <translation>New member</translation>
    </message>
    <message>
        <source>取单</source>
        <translation>Recall a bill</translation>
    </message>
    <message>
        <source>功能</source>
        <translation>Functions</translation>
    </message>
    <message>
        <source>会员充值</source>
        <translation>Top up a card</translation>
    </message>
    <message>
        <source>开箱</source>
        <translation>Drawer</translation>
    </message>
    <message>
        <source>开钱箱</source>
        <translation>Open the drawer</translation>
    </message>
    <message>
        <source>查找商品</source>
        <translation>Find goods</translation>
    </message>
    <message>
        <source>销售查询</source>
        <translation>Sales query</translation>
    </message>
    <message>
        <source>撤消</source>
        <translation>Void</translation>
    </message>
    <message>
        <source>整单撤消</source>
        <translation>Void the bill</translation>
    </message>
    <message>
        <source>向上</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>改最后一行</source>
        <translation>Change the last line</translation>
    </message>
    <message>
        <source>向下</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>回到录入</source>
        <translation>Back to the input line</translation>
    </message>
    <message>
        <source>向左</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>左移一栏</source>
        <translation>One column left</translation>
    </message>
    <message>
        <source>向右</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>右移一栏</source>
        <translation>One column right</translation>
    </message>
    <message>
        <source>增加会员</source>
        <translation>Add a member</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <comment>a key: its functions</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>一键多用&#x3000;%1</source>
        <translation>One key, several functions&#x3000;%1</translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>%1=退出</source>
        <translation>%1=Leave</translation>
    </message>
    <message>
        <source>%1=结账</source>
        <translation>%1=Settle</translation>
    </message>
    <message>
        <source>%1=会员卡</source>
        <translation>%1=Member</translation>
    </message>
    <message>
        <source>%1=增加会员</source>
        <translation>%1=Add&#xa0;member</translation>
    </message>
    <message>
        <source>%1删除最后一行</source>
        <translation>%1=Delete&#xa0;line</translation>
    </message>
    <message>
        <source>%1挂单</source>
        <translation>%1=Hold</translation>
    </message>
    <message>
        <source>%1取单</source>
        <translation>%1=Recall</translation>
    </message>
    <message>
        <source>%1补打小票查询销售</source>
        <translation>%1=Query,&#xa0;reprint</translation>
    </message>
    <message>
        <source>%1会员充值</source>
        <translation>%1=Top&#xa0;up</translation>
    </message>
    <message>
        <source>%1=整单撤消</source>
        <translation>%1=Void&#xa0;bill</translation>
    </message>
    <message>
        <source>方向箭头</source>
        <translation>Arrows</translation>
    </message>
    <message>
        <source>%1改数量折扣</source>
        <translation>%1=Qty,&#xa0;discount</translation>
    </message>
</context>
<context>
    <name>KeyName</name>
    <message>
        <source>空格</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>菜单键</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>小键盘 %1</source>
        <translation>Keypad %1</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>–</source>
        <comment>no key</comment>
        <translation>–</translation>
    </message>
    <message>
        <source>%1 或 %2</source>
        <translation>%1 or %2</translation>
    </message>
    <message>
        <source>前台销售</source>
        <translation>Sale screen</translation>
    </message>
    <message>
        <source>结账时</source>
        <translation>Settlement</translation>
    </message>
    <message>
        <source>在现金栏：收款，打小票</source>
        <translation>Cash field: take payment, print</translation>
    </message>
    <message>
        <source>在现金栏：不收款，返回单据</source>
        <translation>Cash field: back to the bill</translation>
    </message>
    <message>
        <source>转到下一栏</source>
        <translation>Next field</translation>
    </message>
    <message>
        <source>菜单</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>上下选择</source>
        <translation>Up and down</translation>
    </message>
    <message>
        <source>执行</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>%1、右键</source>
        <translation>%1, right click</translation>
    </message>
    <message>
        <source>更多功能、功能菜单</source>
        <translation>Further functions</translation>
    </message>
    <message>
        <source>主菜单的更多功能</source>
        <translation>The same on the main menu</translation>
    </message>
    <message>
        <source>商品快捷键</source>
        <translation>Quick keys</translation>
    </message>
    <message>
        <source>录入商品 %1</source>
        <translation>Ring up goods %1</translation>
    </message>
</context>
<context>
    <name>MemberCard</name>
    <message>
        <source>会员卡只能在还没有开始销售时加入！</source>
        <translation>A member can only be attached before the sale begins.</translation>
    </message>
    <message>
        <source>会员卡</source>
        <translation>Member</translation>
    </message>
    <message>
        <source>输入会员卡号或电话：</source>
        <translation>Member card number or telephone:</translation>
    </message>
    <message>
        <source>会员卡被禁用！卡号：%1，持卡人：%2</source>
        <translation>This member card is disabled. Card: %1, holder: %2</translation>
    </message>
    <message>
        <source>无效的会员卡!</source>
        <translation>This member card is not valid.</translation>
    </message>
    <message>
        <source>%1（已禁用）</source>
        <translation>%1 (disabled)</translation>
    </message>
</context>
<context>
    <name>Modal</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是(&amp;Y)</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>否(&amp;N)</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>PaidBill</name>
    <message>
        <source>流水号 %1，金额 %2</source>
        <translation>Bill %1, amount %2</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <comment>bill and why not</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>上次程序中断前已收款的单据，现在已补存，请勿重新录入：
%1</source>
        <translation>These bills were paid before the program was interrupted and have now been stored. Please don&apos;t ring them again:
%1</translation>
    </message>
    <message>
        <source>已收款的单据还不能补存，请与管理员联系：
%1</source>
        <translation>Paid bills can&apos;t be stored yet. Please ask the administrator:
%1</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>店主（编号 1）姓名：</source>
        <translation>Owner (number 1), name:</translation>
    </message>
    <message>
        <source>收银员（编号 2）姓名：</source>
        <translation>Cashier (number 2), name:</translation>
    </message>
    <message>
        <source>登录时输入用户编号和密码。还没有收银员的话，空着就行；以后店主可以用 tilladmin operator 增加。</source>
        <translation>Everybody logs in with a number and a password. Leave the cashier empty if there is none yet; the owner can add operators later with tilladmin operator.</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>再输一次：</source>
        <translation>Once more:</translation>
    </message>
    <message>
        <source>请写密码。</source>
        <translation>Please enter a password.</translation>
    </message>
    <message>
        <source>两次输入的密码不一样。</source>
        <translation>The two passwords are different.</translation>
    </message>
    <message>
        <source>店主和收银员</source>
        <translation>Owner and cashier</translation>
    </message>
</context>
<context>
    <name>PortError</name>
    <message>
        <source>打印失败：不能生成 PDF</source>
        <translation>Printing failed: the PDF could not be made</translation>
    </message>
    <message>
        <source>打印文件夹写不进：%1</source>
        <translation>The print folder can&apos;t be written: %1</translation>
    </message>
    <message>
        <source>打印文件夹 %1 写不进：%2</source>
        <translation>The print folder %1 can&apos;t be written: %2</translation>
    </message>
    <message>
        <source>没有默认打印机</source>
        <translation>There is no default printer</translation>
    </message>
    <message>
        <source>打印机 %1 打印失败</source>
        <translation>Printing on %1 failed</translation>
    </message>
    <message>
        <source>端口 %1 打不开：%2</source>
        <translation>Port %1 can&apos;t be opened: %2</translation>
    </message>
    <message>
        <source>端口 %1 写不进：%2</source>
        <translation>Port %1 can&apos;t be written: %2</translation>
    </message>
    <message>
        <source>没有这个设备（%1）</source>
        <translation>There is no such device (%1)</translation>
    </message>
    <message>
        <source>没有使用权限，或正被别的程序占用</source>
        <translation>No permission, or in use by another program</translation>
    </message>
    <message>
        <source>设备已断开</source>
        <translation>The device was disconnected</translation>
    </message>
    <message>
        <source>客户显示屏的端口“%1”不是有效的端口号</source>
        <translation>The display&apos;s port &quot;%1&quot; is not a valid port number</translation>
    </message>
</context>
<context>
    <name>PosSetLists</name>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>小票打印机所在端口：</source>
        <translation>Receipt printer port:</translation>
    </message>
    <message>
        <source>“无”表示不印小票</source>
        <translation>&quot;None&quot; prints no receipts</translation>
    </message>
    <message>
        <source>小票打印机类型：</source>
        <translation>Receipt printer paper:</translation>
    </message>
    <message>
        <source>宽行</source>
        <translation>Wide</translation>
    </message>
    <message>
        <source>窄行</source>
        <translation>Narrow</translation>
    </message>
    <message>
        <source>小票打印动作：</source>
        <translation>Printing:</translation>
    </message>
    <message>
        <source>不打印</source>
        <translation>Don&apos;t print</translation>
    </message>
    <message>
        <source>直接打印1联</source>
        <translation>Print 1 copy</translation>
    </message>
    <message>
        <source>直接打印2联</source>
        <translation>Print 2 copies</translation>
    </message>
    <message>
        <source>直接打印3联</source>
        <translation>Print 3 copies</translation>
    </message>
    <message>
        <source>打印前提示默认&apos;是&apos;</source>
        <translation>Ask first, default &apos;Yes&apos;</translation>
    </message>
    <message>
        <source>打印前提示默认&apos;否&apos;</source>
        <translation>Ask first, default &apos;No&apos;</translation>
    </message>
    <message>
        <source>小票打印选项：</source>
        <translation>Receipt lines:</translation>
    </message>
    <message>
        <source>打印商品前7个字简称</source>
        <translation>First 7 characters of the name</translation>
    </message>
    <message>
        <source>打印编码+商品全称</source>
        <translation>Code + full name</translation>
    </message>
    <message>
        <source>打印商品全称</source>
        <translation>Full name</translation>
    </message>
    <message>
        <source>打印商品全称+折扣</source>
        <translation>Full name + discount</translation>
    </message>
    <message>
        <source>钱箱所在端口：</source>
        <translation>Cash drawer port:</translation>
    </message>
    <message>
        <source>“无”表示不使用钱箱</source>
        <translation>&quot;None&quot; uses no drawer</translation>
    </message>
    <message>
        <source>客显所在端口：</source>
        <translation>Pole display port:</translation>
    </message>
    <message>
        <source>“无”表示不使用客显</source>
        <translation>&quot;None&quot; uses no display</translation>
    </message>
    <message>
        <source>客显型号：</source>
        <translation>Pole display model:</translation>
    </message>
    <message>
        <source>中崎ZQ-8DL</source>
        <translation>Zhongqi ZQ-8DL</translation>
    </message>
    <message>
        <source>川田PDLED8C</source>
        <translation>Chuantian PDLED8C</translation>
    </message>
    <message>
        <source>是否启用鼠标：</source>
        <translation>Mouse pointer:</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>测试</source>
        <translation>Test</translation>
    </message>
</context>
<context>
    <name>PreviewTable</name>
    <message>
        <source>零售价 %1 → %2</source>
        <translation>Retail price %1 → %2</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>行</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>商品编码</source>
        <translation>Goods code</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>内容</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>不能导入</source>
        <translation>Refused</translation>
    </message>
    <message>
        <source>可能有错</source>
        <translation>Doubtful</translation>
    </message>
    <message>
        <source>改动</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>新增</source>
        <translation>New</translation>
    </message>
    <message>
        <source>零售价 %1</source>
        <translation>Retail price %1</translation>
    </message>
    <message>
        <source>……还有 %1 行</source>
        <translation>… and %1 more lines</translation>
    </message>
    <message>
        <source>新增 %1 行，改动 %2 行，不变 %3 行</source>
        <translation>%1 new, %2 changed, %3 unchanged</translation>
    </message>
    <message>
        <source>%1，不能导入 %2 行</source>
        <translation>%1, %2 refused</translation>
    </message>
</context>
<context>
    <name>QuickKeyModel</name>
    <message>
        <source>键值</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>商品编码</source>
        <translation>Goods code</translation>
    </message>
    <message>
        <source>按键</source>
        <translation>Key</translation>
    </message>
</context>
<context>
    <name>ReceiptPage</name>
    <message>
        <source>店名：</source>
        <translation>Shop name:</translation>
    </message>
    <message>
        <source>小票文字一：</source>
        <translation>Receipt text 1:</translation>
    </message>
    <message>
        <source>小票文字二：</source>
        <translation>Receipt text 2:</translation>
    </message>
    <message>
        <source>小票文字三：</source>
        <translation>Receipt text 3:</translation>
    </message>
    <message>
        <source>小票文字四：</source>
        <translation>Receipt text 4:</translation>
    </message>
    <message>
        <source>小票文字五：</source>
        <translation>Receipt text 5:</translation>
    </message>
    <message>
        <source>小票文字六：</source>
        <translation>Receipt text 6:</translation>
    </message>
    <message>
        <source>应收金额：</source>
        <translation>Amount due:</translation>
    </message>
    <message>
        <source>不舍入</source>
        <translation>Don&apos;t round</translation>
    </message>
    <message>
        <source>舍入到角</source>
        <translation>Round to 0.1 yuan</translation>
    </message>
    <message>
        <source>舍入到元</source>
        <translation>Round to 1 yuan</translation>
    </message>
    <message>
        <source>右边的小票是样子，随着输入改变。接在 LPT 端口上的打印机只印文字二和文字三。</source>
        <translation>The receipt on the right is a sample and follows what you type. A printer on an LPT port prints texts 2 and 3 only.</translation>
    </message>
    <message>
        <source>请写店名，它是小票的第一行。</source>
        <translation>Please enter the shop&apos;s name: it is the receipt&apos;s first line.</translation>
    </message>
    <message>
        <source>店名和小票</source>
        <translation>Shop name and receipt</translation>
    </message>
</context>
<context>
    <name>ResultModel</name>
    <message>
        <source>日期</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>单号</source>
        <translation>Bill</translation>
    </message>
    <message>
        <source>编码</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>商品名称</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>数量</source>
        <translation>Qty</translation>
    </message>
    <message>
        <source>零售价</source>
        <translation>Retail price</translation>
    </message>
    <message>
        <source>折扣</source>
        <translation>Discount</translation>
    </message>
    <message>
        <source>金额小计</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>成本单价</source>
        <translation>Unit cost</translation>
    </message>
    <message>
        <source>成本金额</source>
        <translation>Cost</translation>
    </message>
    <message>
        <source>销售毛利</source>
        <translation>Gross profit</translation>
    </message>
    <message>
        <source>商品条码</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>商品类别</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>超出范围</source>
        <translation>Out of range</translation>
    </message>
    <message>
        <source>合计</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>ReturnLines</name>
    <message>
        <source>商品编码</source>
        <translation>Goods code</translation>
    </message>
    <message>
        <source>商品名称</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>销售单价</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>数量</source>
        <translation>Qty</translation>
    </message>
    <message>
        <source>折扣</source>
        <translation>Discount</translation>
    </message>
    <message>
        <source>合计</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>Returns</name>
    <message>
        <source>无效的流水号！</source>
        <translation>This is not a valid bill number.</translation>
    </message>
    <message>
        <source>没有找到“%1”单据！</source>
        <translation>There is no bill &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>单据“%1”还没有结账，不能退货！</source>
        <translation>Bill &quot;%1&quot; has not been settled, so nothing can be returned.</translation>
    </message>
    <message>
        <source>流水号：%1 商品数量：%2 金额：%3<byte value="xd"/>
 销售时间：%4 收银员：%5</source>
        <translation>Bill: %1 Qty: %2 Amount: %3<byte value="xd"/>
 Time: %4 Cashier: %5</translation>
    </message>
    <message>
        <source>会员卡号：%1 会员姓名：%2</source>
        <translation>Member card: %1 Member: %2</translation>
    </message>
    <message>
        <source>实退金额 %1 元超过了所退商品的金额 %2 元，确定要退吗？</source>
        <translation>The refund of %1 yuan is more than the %2 yuan of the goods returned. Refund it?</translation>
    </message>
    <message>
        <source>实退金额 %1 元超过了该商品的剩余金额 %2 元（以前退货时已多退），确定要退吗？</source>
        <translation>The refund of %1 yuan is more than the %2 yuan that remain of these goods (earlier returns refunded more than their worth). Refund it?</translation>
    </message>
    <message>
        <source>没有可退的数量！</source>
        <translation>Nothing is left to return.</translation>
    </message>
    <message>
        <source>实退金额不能是负数！</source>
        <translation>The refund can&apos;t be negative.</translation>
    </message>
    <message>
        <source>单据“%1”是 %2 号收银机的，请到那台收银机上退货！</source>
        <translation>Bill &quot;%1&quot; is of till %2. Take the goods back there.</translation>
    </message>
    <message>
        <source>没有联网，不能退别台的单！
单据“%1”是 %2 号收银机的，可以到那台收银机上退货。</source>
        <translation>The server is away: goods of another till&apos;s bill can&apos;t be taken back here!
Bill “%1” is till %2&apos;s; the goods can be taken back there.</translation>
    </message>
</context>
<context>
    <name>Right</name>
    <message>
        <source>收银</source>
        <translation>Sell</translation>
    </message>
    <message>
        <source>打折和优惠</source>
        <translation>Discount</translation>
    </message>
    <message>
        <source>手工定价</source>
        <translation>Typed price</translation>
    </message>
    <message>
        <source>负数量</source>
        <translation>Negative quantity</translation>
    </message>
    <message>
        <source>删行和撤单</source>
        <translation>Delete or void</translation>
    </message>
    <message>
        <source>退货</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>会员充值</source>
        <translation>Top up</translation>
    </message>
    <message>
        <source>开钱箱</source>
        <translation>Open the drawer</translation>
    </message>
    <message>
        <source>补打小票</source>
        <translation>Reprint</translation>
    </message>
    <message>
        <source>销售查询和导出</source>
        <translation>Query and export</translation>
    </message>
    <message>
        <source>会员资料</source>
        <translation>Members</translation>
    </message>
    <message>
        <source>设置和导入商品</source>
        <translation>Settings, goods import</translation>
    </message>
    <message>
        <source>交班</source>
        <translation>Hand-over</translation>
    </message>
    <message>
        <source>经营报表</source>
        <translation>Owner&apos;s report</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a deed, and how much of it</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>per cent</comment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 元</source>
        <translation>%1 yuan</translation>
    </message>
</context>
<context>
    <name>RulesPage</name>
    <message>
        <source>收款和备份</source>
        <translation>Payment and backup</translation>
    </message>
    <message>
        <source>%1：</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>以后店主可以更改：店铺的用 tilladmin param，备份的在 Config.ini 里。</source>
        <translation>The owner can change these later: the shop&apos;s with tilladmin param, those of backups in Config.ini.</translation>
    </message>
</context>
<context>
    <name>Sale</name>
    <message>
        <source>原价合计太大，无法计算。</source>
        <translation>The total at full price is too large to add up.</translation>
    </message>
</context>
<context>
    <name>SaleDevices</name>
    <message>
        <source>确定要打印吗</source>
        <translation>Print the receipt?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Question</translation>
    </message>
</context>
<context>
    <name>SaleMessages</name>
    <message>
        <source>出现提示时扫描的商品没有录入，请重扫。</source>
        <translation>The goods scanned while the message was shown were not rung. Please scan them again.</translation>
    </message>
</context>
<context>
    <name>SaleSession</name>
    <message>
        <source>电脑系统时间错误！
%1</source>
        <translation>The computer&apos;s clock is wrong.
%1</translation>
    </message>
    <message>
        <source>致命错误</source>
        <translation>Fatal error</translation>
    </message>
    <message>
        <source>单据 %1 的时间是 %2，今天却是 %3。
请先看电脑的日期对不对；电脑对了，就请店主改正这张单据：
tilladmin bill redate %4 %1</source>
        <translation>Bill %1 is dated %2, but today is %3.
First see whether the computer&apos;s date is right; if it is, ask the owner to correct the bill:
tilladmin bill redate %4 %1</translation>
    </message>
    <message>
        <source>结    账</source>
        <translation>Settle</translation>
    </message>
    <message>
        <source>挂    起</source>
        <translation>Hold</translation>
    </message>
    <message>
        <source>调    入</source>
        <translation>Recall</translation>
    </message>
    <message>
        <source>打印机开关</source>
        <translation>Printer on/off</translation>
    </message>
    <message>
        <source>本单撤消</source>
        <translation>Void this bill</translation>
    </message>
    <message>
        <source>颜色设置</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>退    出</source>
        <translation>Leave</translation>
    </message>
    <message>
        <source>帮    助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>没有设置打印机，打印机开关保持关闭。</source>
        <translation>No printer is set, so it stays off.</translation>
    </message>
    <message>
        <source>USB 打印机不逐行打印，打印机开关保持关闭。</source>
        <translation>A USB printer doesn&apos;t print line by line, so the printer stays off.</translation>
    </message>
    <message>
        <source>打印机已打开。</source>
        <translation>The printer is on.</translation>
    </message>
    <message>
        <source>打印机已关闭。</source>
        <translation>The printer is off.</translation>
    </message>
    <message>
        <source>还没结束销售或还有挂起单子，不能退出。</source>
        <translation>A sale is open or on hold. Please finish it before leaving.</translation>
    </message>
</context>
<context>
    <name>SaleTexts</name>
    <message>
        <source>流水号：%1   收银员：%2</source>
        <translation>Bill no.: %1   Cashier: %2</translation>
    </message>
    <message>
        <source>%1件商品，原价合计%2   合计%3元</source>
        <translation>%1 pcs, at full price %2   Total %3 yuan</translation>
    </message>
    <message>
        <source>%1件商品，原价总计%2合计%3元</source>
        <translation>%1 pcs, at full price %2 Total %3 yuan</translation>
    </message>
    <message>
        <source>%1件商品，合计%2元</source>
        <translation>%1 pcs, total %2 yuan</translation>
    </message>
    <message>
        <source>会员：%1，办卡日期：%2，累计消费：%3</source>
        <translation>Member: %1, since: %2, spent so far: %3</translation>
    </message>
    <message>
        <source>最近消费时间：%1，金额：%2
最近购买商品：%3</source>
        <translation>Last purchase: %1, amount: %2
Last goods: %3</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>数量超出范围：%1</source>
        <translation>Quantity out of range: %1</translation>
    </message>
    <message>
        <source>库存不足：%1现有库存 %2</source>
        <translation>Not enough in stock: %1 in stock %2</translation>
    </message>
</context>
<context>
    <name>SearchPanel</name>
    <message>
        <source>查询从</source>
        <translation>From</translation>
    </message>
    <message>
        <source>到</source>
        <translation>to</translation>
    </message>
    <message>
        <source>按单号查询(&amp;N)</source>
        <translation>By bill &amp;no.</translation>
    </message>
    <message>
        <source>助记码/条码</source>
        <translation>Item/barcode</translation>
    </message>
    <message>
        <source>销售数量&lt;=</source>
        <translation>Qty sold &lt;=</translation>
    </message>
    <message>
        <source>按单品查看(&amp;I)</source>
        <translation>By &amp;item</translation>
    </message>
    <message>
        <source>按分类查看(&amp;C)</source>
        <translation>By &amp;category</translation>
    </message>
    <message>
        <source>请选择类别</source>
        <translation>Choose a category</translation>
    </message>
    <message>
        <source>查询(&amp;Q)</source>
        <translation>&amp;Query</translation>
    </message>
    <message>
        <source>导出excel(&amp;E)</source>
        <translation>&amp;Export</translation>
    </message>
    <message>
        <source>用小票打印报表(&amp;R)</source>
        <translation>Print &amp;report on receipt</translation>
    </message>
    <message>
        <source>补打小票(&amp;P)</source>
        <translation>Re&amp;print receipt</translation>
    </message>
    <message>
        <source>补打上一单(&amp;L)</source>
        <translation>Reprint &amp;last bill</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>单号/付款码(&amp;N)</source>
        <translation>Bill &amp;no./code</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>设置写不进 Config.ini。</source>
        <translation>The settings can&apos;t be written to Config.ini.</translation>
    </message>
</context>
<context>
    <name>SettlementTexts</name>
    <message>
        <source>%1%2</source>
        <comment>kind of payment and its figure, before the next one</comment>
        <translation>%1 %2 </translation>
    </message>
    <message>
        <source>单号：%1结账时间：%2收银员：%3</source>
        <translation>Bill: %1 settled at: %2 cashier: %3</translation>
    </message>
    <message>
        <source>共 %1 件商品</source>
        <translation>%1 pcs</translation>
    </message>
    <message>
        <source>超出范围</source>
        <translation>Out of range</translation>
    </message>
    <message>
        <source>应收%1 %2找零%3元</source>
        <translation>Due %1 %2 Change %3 yuan</translation>
    </message>
    <message>
        <source>上一单：金额 %1实收%2找零%3  优惠%4</source>
        <translation>Last: %1 received %2change %3  disc. %4</translation>
    </message>
    <message>
        <source>储值卡号错误,请重输</source>
        <translation>No such stored-value card, please enter it again</translation>
    </message>
    <message>
        <source>会员卡被禁用！卡号：%1，持卡人：%2</source>
        <translation>This member card is disabled. Card: %1, holder: %2</translation>
    </message>
    <message>
        <source>储值卡密码错误,请重输</source>
        <translation>Wrong stored-value card password, please enter it again</translation>
    </message>
    <message>
        <source>储值卡余额不够,请先充值</source>
        <translation>Not enough on the stored-value card, please top it up first</translation>
    </message>
    <message>
        <source> 储值卡消费成功！余额：%1 </source>
        <translation>Paid with the stored-value card. Balance: %1</translation>
    </message>
    <message>
        <source>储值卡没有扣款：%1</source>
        <translation>The stored-value card was not charged: %1</translation>
    </message>
    <message>
        <source>没有收款，请再确认一次：%1</source>
        <translation>No payment was taken, please confirm once more: %1</translation>
    </message>
    <message>
        <source>没有收款：金额太大，找零算不出来。</source>
        <translation>No payment was taken: the amount is too large to work out the change.</translation>
    </message>
    <message>
        <source>应收是负数，不能用储值卡付款。</source>
        <translation>The amount due is negative and can&apos;t be paid with a stored-value card.</translation>
    </message>
    <message>
        <source>储值卡没有回应，请改用其它方式付款</source>
        <translation>Nobody answers for the stored-value card. Take another kind of payment.</translation>
    </message>
</context>
<context>
    <name>SoldLines</name>
    <message>
        <source>单号超出范围。</source>
        <translation>The bill number is out of range.</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>开什么店：</source>
        <translation>Which shop:</translation>
    </message>
    <message>
        <source>新店铺</source>
        <translation>A new shop</translation>
    </message>
    <message>
        <source>演示店铺</source>
        <translation>The demo shop</translation>
    </message>
    <message>
        <source>从备份恢复</source>
        <translation>From a backup</translation>
    </message>
    <message>
        <source>备份文件：</source>
        <translation>Backup file:</translation>
    </message>
    <message>
        <source>下面几步问店名、小票、操作员、商品和打印机，每一步都已经选好常用的答案。全部答完才建立店铺；中途退出，什么也不留下。</source>
        <translation>The next pages ask for the shop&apos;s name, receipt, operators, goods and printer, each with the usual answer chosen. The shop is made when all is answered; leaving before leaves nothing behind.</translation>
    </message>
    <message>
        <source>演示店铺有 300 种商品、5 位会员和 3 位操作员，用来试用：用户编号 1，密码 111。</source>
        <translation>The demo shop has 300 goods, 5 members and 3 operators to try things with: number 1, password 111.</translation>
    </message>
    <message>
        <source>检查备份文件，用它恢复店铺；备份文件本身不动。</source>
        <translation>The backup file is checked and the shop restored from it; the backup itself stays as it is.</translation>
    </message>
    <message>
        <source>没有这个备份文件。</source>
        <translation>There is no such backup file.</translation>
    </message>
    <message>
        <source>怎样开店</source>
        <translation>How to begin</translation>
    </message>
</context>
<context>
    <name>SyncProgram</name>
    <message>
        <source>服务器不认这台收银机，请告诉店主</source>
        <translation>The server doesn&apos;t know this till; tell the owner</translation>
    </message>
    <message>
        <source>离线 %1 分钟，%2 单未上传</source>
        <translation>Offline %1 min, %2 bills to send</translation>
    </message>
    <message>
        <source>服务器的证书不对，请告诉店主</source>
        <translation>The server&apos;s certificate is wrong; tell the owner</translation>
    </message>
</context>
<context>
    <name>TenderSum</name>
    <message>
        <source>超出范围</source>
        <translation>Out of range</translation>
    </message>
</context>
<context>
    <name>Till</name>
    <message>
        <source>要现在开店吗？</source>
        <translation>Set up the shop now?</translation>
    </message>
    <message>
        <source>您没有看经营报表的权限！</source>
        <translation>You have no right to see the owner&apos;s report.</translation>
    </message>
    <message>
        <source>您没有看日志的权限！</source>
        <translation>You have no right to see the journal.</translation>
    </message>
</context>
<context>
    <name>TillApplication</name>
    <message>
        <source>店铺的文件夹，里面有 Config.ini 和 data。</source>
        <translation>The shop&apos;s folder, which holds Config.ini and data.</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>前台收银</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>程序出错，必须结束：%1</source>
        <translation>The program failed and has to end: %1</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>没有“%1”这个时间！请按 08:30:00 或 083000 的样子输入。</source>
        <translation>There is no time &quot;%1&quot;. Please enter it like 08:30:00 or 083000.</translation>
    </message>
</context>
<context>
    <name>TopUpReport</name>
    <message>
        <source>卡号 %1，付款 %2，充值 %3</source>
        <translation>Card %1, paid %2, credited %3</translation>
    </message>
    <message>
        <source>以下充值没有记入卡内，请核对后重新充值：
%1</source>
        <translation>These top-ups did not reach the card. Please check them and top up again:
%1</translation>
    </message>
</context>
<context>
    <name>TopUpTexts</name>
    <message>
        <source>会员卡号不能为空,请输入卡号</source>
        <translation>Please enter the member card number</translation>
    </message>
    <message>
        <source>请输入正数</source>
        <translation>Please enter a positive number</translation>
    </message>
    <message>
        <source>卡号已改变，请在卡号处按回车重新查找会员！</source>
        <translation>The card number has changed. Press Enter in the card field to look the member up again.</translation>
    </message>
    <message>
        <source>会员卡被禁用！卡号：%1，持卡人：%2</source>
        <translation>This member card is disabled. Card: %1, holder: %2</translation>
    </message>
    <message>
        <source>没有这张会员卡，没有充值！</source>
        <translation>There is no such member card. Nothing was topped up.</translation>
    </message>
    <message>
        <source>充值没有完成，卡内余额没有改变：%1</source>
        <translation>The top-up was not completed and the balance is unchanged: %1</translation>
    </message>
    <message>
        <source>充值成功！本次充值%1,充值后卡内余额%2  </source>
        <translation>Topped up by %1, the balance is now %2  </translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>是 UTF-16 文字，请另存为 UTF-8 或 GBK 的 CSV 文件</source>
        <translation>UTF-16 text; please save it as a CSV file in UTF-8 or GBK</translation>
    </message>
    <message>
        <source>读不出来，磁盘可能有问题</source>
        <translation>it can&apos;t be read, the disk may be bad</translation>
    </message>
    <message>
        <source>引号只能把整个字段括起来，字段里的引号要写两个</source>
        <translation>quotes can only stand around a whole field; within a field write two of them</translation>
    </message>
    <message>
        <source>引号没有结束</source>
        <translation>a quote is not closed</translation>
    </message>
    <message>
        <source>引号后面还有文字</source>
        <translation>there is text behind a closing quote</translation>
    </message>
    <message>
        <source>太长，可能少了一个引号</source>
        <translation>the line is too long, perhaps a quote is missing</translation>
    </message>
    <message>
        <source>含有不是文字的内容</source>
        <translation>there is something in it that is not text</translation>
    </message>
    <message>
        <source>含有既不是 UTF-8 也不是 GBK 的文字</source>
        <translation>there is text in it that is neither UTF-8 nor GBK</translation>
    </message>
    <message>
        <source>第 %1 行%2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>金额太大，超出了可以计算的范围。</source>
        <translation>The amount is too large to work with.</translation>
    </message>
    <message>
        <source>这台电脑缺少中文字符集（GBK）的支持，请安装后再启动。</source>
        <translation>This computer lacks the Chinese character set (GBK). Please install it and start again.</translation>
    </message>
    <message>
        <source>数值超出了可以计算的范围。</source>
        <translation>The number is too large to work with.</translation>
    </message>
    <message>
        <source>文件夹不存在。</source>
        <translation>The folder does not exist.</translation>
    </message>
    <message>
        <source>已经有一个同名的文件夹。</source>
        <translation>There is a folder of that name already.</translation>
    </message>
    <message>
        <source>已经有这个文件。</source>
        <translation>The file is there already.</translation>
    </message>
    <message>
        <source>没有写入这个文件夹的权限。</source>
        <translation>You have no permission to write to this folder.</translation>
    </message>
    <message>
        <source>磁盘是只读的。</source>
        <translation>The disk is read-only.</translation>
    </message>
    <message>
        <source>磁盘已满。</source>
        <translation>The disk is full.</translation>
    </message>
    <message>
        <source>文件太大，这个磁盘放不下。</source>
        <translation>The file is too large for this disk.</translation>
    </message>
    <message>
        <source>读写磁盘时出错，请检查磁盘。</source>
        <translation>The disk could not be read or written. Please check it.</translation>
    </message>
    <message>
        <source>文件名太长。</source>
        <translation>The file name is too long.</translation>
    </message>
    <message>
        <source>系统错误 %1。</source>
        <translation>System error %1.</translation>
    </message>
    <message>
        <source>没有这个设备（%1）</source>
        <translation>There is no such device (%1)</translation>
    </message>
    <message>
        <source>没有程序在接收</source>
        <translation>no program is receiving</translation>
    </message>
    <message>
        <source>设备没有接好</source>
        <translation>the device is not connected</translation>
    </message>
    <message>
        <source>没有使用权限（%1）</source>
        <translation>no permission (%1)</translation>
    </message>
    <message>
        <source>正被别的程序占用</source>
        <translation>in use by another program</translation>
    </message>
    <message>
        <source>%1 是文件夹</source>
        <translation>%1 is a folder</translation>
    </message>
    <message>
        <source>缺纸或空间已满</source>
        <translation>out of paper or space</translation>
    </message>
    <message>
        <source>接收的程序已退出</source>
        <translation>the receiving program has ended</translation>
    </message>
    <message>
        <source>设备已断开</source>
        <translation>The device was disconnected</translation>
    </message>
    <message>
        <source>设备太久没有接收，请检查是否开机、缺纸</source>
        <translation>the device has not taken anything for too long; please check its power and paper</translation>
    </message>
    <message>
        <source>系统错误 %1</source>
        <translation>System error %1</translation>
    </message>
    <message>
        <source>这台电脑缺少 UTF-16 字符集的支持。</source>
        <translation>This computer lacks the UTF-16 character set.</translation>
    </message>
    <message>
        <source>那里不是普通文件。</source>
        <translation>There is something else than a file.</translation>
    </message>
    <message>
        <source>不能写入 %1：%2</source>
        <translation>%1 can&apos;t be written: %2</translation>
    </message>
    <message>
        <source>数据文件 %1 打不开：%2</source>
        <translation>The data file %1 can&apos;t be opened: %2</translation>
    </message>
    <message>
        <source>这个数据文件没有密码，请在设置中去掉密码部分。</source>
        <translation>This data file has no password. Please take the password out of the settings.</translation>
    </message>
    <message>
        <source>前面的写入失败，这一步的数据已全部撤销，没有保存。</source>
        <translation>Something before could not be written, so all of this step was undone and nothing saved.</translation>
    </message>
    <message>
        <source>数据文件所在的磁盘不支持安全写入，请换到本机磁盘上。</source>
        <translation>The data file&apos;s disk doesn&apos;t support safe writing. Please use a disk of this computer.</translation>
    </message>
    <message>
        <source>已经有这个文件，不会覆盖：%1</source>
        <translation>The file is there already and is not replaced: %1</translation>
    </message>
    <message>
        <source>文件已损坏。</source>
        <translation>The file is damaged.</translation>
    </message>
    <message>
        <source>不能备份到数据文件自己：%1</source>
        <translation>The data file can&apos;t be backed up to itself: %1</translation>
    </message>
    <message>
        <source>备份文件写出来不对，没有采用：%1</source>
        <translation>The backup was not written correctly and was not kept: %1</translation>
    </message>
    <message>
        <source>它属于用户 %1，用户 %2 不能读写。请用那个用户启动，或者请管理员把文件交给现在的用户。</source>
        <translation>it belongs to the user %1, and the user %2 can&apos;t read and write it. Please start the program as that user, or ask the administrator to give the file to the present one.</translation>
    </message>
    <message>
        <source>收款程序已经打开，正在使用这个数据文件，不能同时打开第二个。</source>
        <translation>The till is open already and uses this data file. It can&apos;t be opened twice.</translation>
    </message>
    <message>
        <source>不能锁定数据文件 %1：%2</source>
        <translation>The data file %1 can&apos;t be locked: %2</translation>
    </message>
    <message>
        <source>打不开数据文件 %1：%2</source>
        <translation>The data file %1 can&apos;t be opened: %2</translation>
    </message>
    <message>
        <source>数据文件 %1 在磁盘上另有一个名字（硬链接）。两个名字同时使用会丢失数据，请只留一个。</source>
        <translation>The data file %1 has another name on the disk (a hard link). Using both would lose data; please leave just one.</translation>
    </message>
    <message>
        <source>数据文件的位置是一个文件夹：%1</source>
        <translation>A folder is in the data file&apos;s place: %1</translation>
    </message>
    <message>
        <source>数据文件的位置不是普通文件：%1</source>
        <translation>Something else than a file is in the data file&apos;s place: %1</translation>
    </message>
    <message>
        <source>没有权限进入数据文件所在的文件夹：%1</source>
        <translation>You have no permission to enter the data file&apos;s folder: %1</translation>
    </message>
    <message>
        <source>找不到数据文件：%1</source>
        <translation>The data file was not found: %1</translation>
    </message>
    <message>
        <source>数据文件 %1 在使用中被删除、移走或换成了别的文件，不能再保存。请把原来的文件放回原处。放不回时请退出程序，退出时会备份到此为止的账目，可用 tilladmin restore 恢复。</source>
        <translation>The data file %1 was deleted, moved or replaced while in use, so nothing can be saved. Please put the file back in its place. If you can&apos;t, end the program: it backs up the books as they are, and tilladmin restore brings them back.</translation>
    </message>
    <message>
        <source>找不到备份文件：%1</source>
        <translation>The backup file was not found: %1</translation>
    </message>
    <message>
        <source>备份文件就是数据文件自己：%1</source>
        <translation>The backup file is the data file itself: %1</translation>
    </message>
    <message>
        <source>备份文件旁边的日志 %1 里还有没并入的账目。请先用 tilladmin backup 给它做一个备份，再用那个备份恢复。</source>
        <translation>The log %1 beside the backup file still holds something that is not in the file. Please back it up with tilladmin backup first, and restore from that backup.</translation>
    </message>
    <message>
        <source>不能读备份文件：%1</source>
        <translation>The backup file can&apos;t be read: %1</translation>
    </message>
    <message>
        <source>不能把 %1 改名为 %2：%3</source>
        <translation>%1 can&apos;t be renamed to %2: %3</translation>
    </message>
    <message>
        <source>没有恢复，备份文件不能用：%1</source>
        <translation>Nothing was restored, the backup can&apos;t be used: %1</translation>
    </message>
    <message>
        <source>原来的数据文件现在是 %1</source>
        <translation>The old data file is now %1</translation>
    </message>
    <message>
        <source>数据语句有误：%1，在“%2”之后。</source>
        <translation>Wrong statement: %1, after &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>日期没有结束</source>
        <translation>a date is not closed</translation>
    </message>
    <message>
        <source>没有这个日期</source>
        <translation>there is no such date</translation>
    </message>
    <message>
        <source>名称没有结束</source>
        <translation>a name is not closed</translation>
    </message>
    <message>
        <source>没有这个名称</source>
        <translation>there is no such name</translation>
    </message>
    <message>
        <source>数字写法不对</source>
        <translation>a number is not written correctly</translation>
    </message>
    <message>
        <source>数字太大</source>
        <translation>a number is too large</translation>
    </message>
    <message>
        <source>有不认识的字符</source>
        <translation>there is an unknown character</translation>
    </message>
    <message>
        <source>不能有注释</source>
        <translation>comments are not allowed</translation>
    </message>
    <message>
        <source>只能有一条语句</source>
        <translation>there can only be one statement</translation>
    </message>
    <message>
        <source>数据文件正被另一个程序占用，请关闭那个程序或稍后再试。</source>
        <translation>The data file is in use by another program. Please close that program or try again later.</translation>
    </message>
    <message>
        <source>数据文件正被另一个操作占用，请稍后再试。</source>
        <translation>The data file is in use by something else. Please try again later.</translation>
    </message>
    <message>
        <source>磁盘已满，数据没有保存。请清理磁盘后再试。</source>
        <translation>The disk is full and the data was not saved. Please make room and try again.</translation>
    </message>
    <message>
        <source>数据文件或它所在的文件夹不能写入，请检查权限。</source>
        <translation>The data file or its folder can&apos;t be written. Please check the permissions.</translation>
    </message>
    <message>
        <source>读写数据文件时出错，请检查磁盘。</source>
        <translation>The data file could not be read or written. Please check the disk.</translation>
    </message>
    <message>
        <source>数据文件已损坏。请退出收款程序，用 tilladmin restore 恢复备份。</source>
        <translation>The data file is damaged. Please end the till and restore a backup with tilladmin restore.</translation>
    </message>
    <message>
        <source>这不是数据文件，或者它的密码不对，或者它已损坏（可用 tilladmin restore 恢复备份）。</source>
        <translation>This is no data file, its password is wrong, or it is damaged (tilladmin restore brings back a backup).</translation>
    </message>
    <message>
        <source>数据文件或它所在的文件夹打不开，请检查权限。</source>
        <translation>The data file or its folder can&apos;t be opened. Please check the permissions.</translation>
    </message>
    <message>
        <source>没有读写数据文件的权限。</source>
        <translation>You have no permission to read and write the data file.</translation>
    </message>
    <message>
        <source>内存不足，数据没有保存。</source>
        <translation>Out of memory, the data was not saved.</translation>
    </message>
    <message>
        <source>查询已停止。</source>
        <translation>The query was stopped.</translation>
    </message>
    <message>
        <source>文字太长，数据文件存不下。</source>
        <translation>The text is too long for the data file.</translation>
    </message>
    <message>
        <source>%1（错误 %2）</source>
        <translation>%1 (error %2)</translation>
    </message>
    <message>
        <source>数据与已有的记录冲突：%1</source>
        <translation>The data contradicts what is there already: %1</translation>
    </message>
    <message>
        <source>数据语句有误：%1</source>
        <translation>Wrong statement: %1</translation>
    </message>
    <message>
        <source>另一个程序一直在写数据文件，没有备份。</source>
        <translation>Another program kept writing the data file, so there is no backup.</translation>
    </message>
    <message>
        <source>查询结果里没有“%1”这一列。</source>
        <translation>The result has no column &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>数据文件里“%1”的内容不是%2。</source>
        <translation>&quot;%1&quot; in the data file does not hold %2.</translation>
    </message>
    <message>
        <source>金额</source>
        <translation>an amount</translation>
    </message>
    <message>
        <source>数字</source>
        <translation>a number</translation>
    </message>
    <message>
        <source>整数</source>
        <translation>a whole number</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>a date</translation>
    </message>
    <message>
        <source>数据文件已损坏：版本号不对。</source>
        <translation>The data file is damaged: its version is wrong.</translation>
    </message>
    <message>
        <source>数据文件是更新版本的程序建立的，请先升级本程序。</source>
        <translation>The data file was made by a newer program. Please update this one first.</translation>
    </message>
    <message>
        <source>这不是本系统的数据文件：%1</source>
        <translation>This is not a data file of this program: %1</translation>
    </message>
    <message>
        <source>数据语句有误：不是一条语句：%1</source>
        <translation>Wrong statement, it is not a single one: %1</translation>
    </message>
    <message>
        <source>备份出来的账目有损坏，没有采用。请用 tilladmin check 检查数据文件。</source>
        <translation>The copied books are damaged and were not kept. Please examine the data file with tilladmin check.</translation>
    </message>
    <message>
        <source>备份出来的单据数和数据文件的不一样，没有采用。</source>
        <translation>The copy has another number of bills than the data file and was not kept.</translation>
    </message>
    <message>
        <source>没有这个文件，或者不是普通文件：%1</source>
        <translation>There is no such file, or it is no ordinary file: %1</translation>
    </message>
    <message>
        <source>Access 文件在读的时候被别的程序改了。</source>
        <translation>The Access file was changed by another program while it was read.</translation>
    </message>
    <message>
        <source>Access 文件%1，文件不完整或者已损坏。请先用 Access 打开它，压缩和修复，去掉密码后另存一份。</source>
        <translation>The Access file%1; it is incomplete or damaged. Please open it with Access, compact and repair it, take its password away and save it anew.</translation>
    </message>
    <message>
        <source>是/否</source>
        <translation>yes/no</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>整型</source>
        <translation>integer</translation>
    </message>
    <message>
        <source>长整型</source>
        <translation>long integer</translation>
    </message>
    <message>
        <source>货币</source>
        <translation>currency</translation>
    </message>
    <message>
        <source>单精度</source>
        <translation>single</translation>
    </message>
    <message>
        <source>双精度</source>
        <translation>double</translation>
    </message>
    <message>
        <source>日期/时间</source>
        <translation>date/time</translation>
    </message>
    <message>
        <source>文本</source>
        <translation>text</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>remarks</translation>
    </message>
    <message>
        <source>小数</source>
        <translation>decimal</translation>
    </message>
    <message>
        <source>OLE 对象</source>
        <translation>OLE object</translation>
    </message>
    <message>
        <source>同步复制 ID</source>
        <translation>replication ID</translation>
    </message>
    <message>
        <source>二进制</source>
        <translation>binary</translation>
    </message>
    <message>
        <source>别的类型</source>
        <translation>another type</translation>
    </message>
    <message>
        <source>里有一个数字短了</source>
        <translation> has a number that is too short</translation>
    </message>
    <message>
        <source>的表 %1 </source>
        <translation>&apos;s table %1 </translation>
    </message>
    <message>
        <source>的表 %1 读不出来</source>
        <translation>&apos;s table %1 can&apos;t be read</translation>
    </message>
    <message>
        <source>%1有一行读不出来</source>
        <translation>%1has a row that can&apos;t be read</translation>
    </message>
    <message>
        <source>%1应有 %2 行，只读出 %3 行</source>
        <translation>%1should have %2 rows, but only %3 can be read</translation>
    </message>
    <message>
        <source>%1有一行不完整</source>
        <translation>%1has an incomplete row</translation>
    </message>
    <message>
        <source>%1有一处备注不完整</source>
        <translation>%1has an incomplete memo</translation>
    </message>
    <message>
        <source>这不是 Access 的数据文件，或者没有读它的权限：%1</source>
        <translation>This is no Access data file, or you have no permission to read it: %1</translation>
    </message>
    <message>
        <source>的最后一页不完整</source>
        <translation>&apos;s last page is incomplete</translation>
    </message>
    <message>
        <source>里没有表 %1</source>
        <translation> has no table %1</translation>
    </message>
    <message>
        <source>Access 文件已损坏，或者加了密，读不下去了。请先用 Access 打开它，压缩和修复，去掉密码后另存一份。</source>
        <translation>The Access file is damaged or encrypted and can&apos;t be read further. Please open it with Access, compact and repair it, take its password away and save it anew.</translation>
    </message>
    <message>
        <source>内存不足，打不开 Access 文件。</source>
        <translation>Out of memory, the Access file can&apos;t be opened.</translation>
    </message>
    <message>
        <source>Access 文件已损坏，读不下去了。</source>
        <translation>The Access file is damaged and can&apos;t be read further.</translation>
    </message>
    <message>
        <source>不能新建备份文件夹 %1：%2</source>
        <translation>The backup folder %1 can&apos;t be made: %2</translation>
    </message>
    <message>
        <source>磁盘剩余空间不够再放一份账目，没有备份。请清理磁盘。</source>
        <translation>The disk has no room for another copy of the books, so there is no backup. Please make room.</translation>
    </message>
    <message>
        <source>备份盘没有接上，找不到文件夹 %1。</source>
        <translation>The backup disk is not connected: there is no folder %1.</translation>
    </message>
    <message>
        <source>备份盘没有接上：%1 和数据文件在同一个磁盘上。</source>
        <translation>The backup disk is not connected: %1 is on the data file&apos;s own disk.</translation>
    </message>
    <message>
        <source>已经有日期更晚的备份 %1，请检查电脑的日期；日期没错时请把它移走。</source>
        <translation>There is a backup of a later date already, %1. Please check the computer&apos;s date; if it is right, move that backup away.</translation>
    </message>
    <message>
        <source>写进去的和读出来的不一样。</source>
        <translation>What was read back differs from what was written.</translation>
    </message>
    <message>
        <source>用户编号或密码不正确！</source>
        <translation>Wrong user number or password.</translation>
    </message>
    <message>
        <source>请输入会员编号！</source>
        <translation>Please enter the member number.</translation>
    </message>
    <message>
        <source>请输入会员姓名！</source>
        <translation>Please enter the member&apos;s name.</translation>
    </message>
    <message>
        <source>年龄不能是负数！</source>
        <translation>The age can&apos;t be negative.</translation>
    </message>
    <message>
        <source>折扣不能是负数！</source>
        <translation>The discount can&apos;t be negative.</translation>
    </message>
    <message>
        <source>储值卡余额不能是负数！</source>
        <translation>The stored-value balance can&apos;t be negative.</translation>
    </message>
    <message>
        <source>会员编号 %1 已经存在！</source>
        <translation>The member number %1 is in use already.</translation>
    </message>
    <message>
        <source>会员编号</source>
        <translation>member number</translation>
    </message>
    <message>
        <source>会员姓名</source>
        <translation>member&apos;s name</translation>
    </message>
    <message>
        <source>性别</source>
        <translation>sex</translation>
    </message>
    <message>
        <source>电话</source>
        <translation>telephone</translation>
    </message>
    <message>
        <source>联系地址</source>
        <translation>address</translation>
    </message>
    <message>
        <source>%1不能超过100个字符！</source>
        <translation>Too long, at most 100 characters: %1</translation>
    </message>
    <message>
        <source>%1含有无法保存的字符！</source>
        <translation>There is a character that can&apos;t be stored: %1</translation>
    </message>
    <message>
        <source>储值卡密码不能超过100个字符！</source>
        <translation>The stored-value password can&apos;t be longer than 100 characters.</translation>
    </message>
    <message>
        <source>储值卡密码含有无法保存的字符！</source>
        <translation>The stored-value password has a character that can&apos;t be stored.</translation>
    </message>
    <message>
        <source>会员 %1 已被删除，没有保存！</source>
        <translation>Member %1 has been deleted, nothing was saved.</translation>
    </message>
    <message>
        <source>操作员 %1 已被删除，没有保存！</source>
        <translation>Operator %1 has been deleted, nothing was saved.</translation>
    </message>
    <message>
        <source>单据 %1 已不在数据文件中！</source>
        <translation>Bill %1 is no longer in the data file.</translation>
    </message>
    <message>
        <source>单据 %1 的商品明细与合计不符，数据文件可能已损坏，请与管理员联系！</source>
        <translation>The lines of bill %1 don&apos;t add up to its total. The data file may be damaged; please ask the administrator.</translation>
    </message>
    <message>
        <source>单据 %1 的商品“%2”已不在数据文件中！</source>
        <translation>&quot;%2&quot; on bill %1 is no longer in the data file.</translation>
    </message>
    <message>
        <source>数量超出范围：%1</source>
        <translation>Quantity out of range: %1</translation>
    </message>
    <message>
        <source>库存不足：%1现有库存 %2</source>
        <translation>Not enough in stock: %1 in stock %2</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>不能超过200个字符，也不能换行</source>
        <translation>can&apos;t be longer than 200 characters and has to be one line</translation>
    </message>
    <message>
        <source>只能是 0 或 1（否或是）</source>
        <translation>can only be 0 or 1 (no or yes)</translation>
    </message>
    <message>
        <source>只能是 0 到 32767 的整数</source>
        <translation>can only be a whole number from 0 to 32767</translation>
    </message>
    <message>
        <source>只能是 0（可以负库存）或 1（不可以负库存）</source>
        <translation>can only be 0 (stock may go below zero) or 1 (it may not)</translation>
    </message>
    <message>
        <source>只能是大于 0、不超过 1 的数（九折写 0.9）</source>
        <translation>can only be a number above 0 and at most 1 (0.9 is 10 % off)</translation>
    </message>
    <message>
        <source>店名，小票的第一行</source>
        <translation>the shop&apos;s name, the receipt&apos;s first line</translation>
    </message>
    <message>
        <source>小票文字一</source>
        <translation>receipt text 1</translation>
    </message>
    <message>
        <source>小票文字二</source>
        <translation>receipt text 2</translation>
    </message>
    <message>
        <source>小票文字三</source>
        <translation>receipt text 3</translation>
    </message>
    <message>
        <source>小票文字四</source>
        <translation>receipt text 4</translation>
    </message>
    <message>
        <source>小票文字五</source>
        <translation>receipt text 5</translation>
    </message>
    <message>
        <source>小票文字六</source>
        <translation>receipt text 6</translation>
    </message>
    <message>
        <source>库存不够时：0 照卖，1 不卖</source>
        <translation>when stock does not suffice: 0 sell, 1 don&apos;t sell</translation>
    </message>
    <message>
        <source>应收舍入到角：0 否，1 是</source>
        <translation>round amounts due to 0.1 yuan: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>应收舍入到元：0 否，1 是</source>
        <translation>round amounts due to 1 yuan: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>消费多少元积 1 分，0 不积分</source>
        <translation>how many yuan earn 1 point, 0 for no points</translation>
    </message>
    <message>
        <source>没有自己折扣的商品打几折（九折写 0.9）</source>
        <translation>discount factor of goods without one of their own (0.9 is 10 % off)</translation>
    </message>
    <message>
        <source>贵宾卡打几折（九折写 0.9）</source>
        <translation>discount factor of VIP cards (0.9 is 10 % off)</translation>
    </message>
    <message>
        <source>银卡打几折（九折写 0.9）</source>
        <translation>discount factor of silver cards (0.9 is 10 % off)</translation>
    </message>
    <message>
        <source>金卡打几折（九折写 0.9）</source>
        <translation>discount factor of gold cards (0.9 is 10 % off)</translation>
    </message>
    <message>
        <source>退出程序时备份数据文件：0 否，1 是</source>
        <translation>back up the data file when the program ends: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>收款、价格、折扣像打错时先问一声：0 否，1 是</source>
        <translation>ask when a payment, price or discount looks mistyped: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>收银台上可以导入商品：0 否，1 是</source>
        <translation>goods can be imported at the till: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>收手机扫码付款：0 否，1 是</source>
        <translation>payment by telephone code: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>收银程序的更多功能里有经营报表（要有 report 权限）：0 否，1 是</source>
        <translation>the owner&apos;s report is among the till&apos;s further functions (needs the right report): 0 no, 1 yes</translation>
    </message>
    <message>
        <source>没有这个参数：%1</source>
        <translation>There is no parameter %1</translation>
    </message>
    <message>
        <source>%1 %2！</source>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>数据文件中 %1 的值超出范围：%2</source>
        <translation>A value of %1 in the data file is out of range: %2</translation>
    </message>
    <message>
        <source>商品“%1”的单位比率太大：%2</source>
        <translation>The unit ratio of &quot;%1&quot; is too large: %2</translation>
    </message>
    <message>
        <source>密码组件无法启动，请与管理员联系！</source>
        <translation>The password component can&apos;t start. Please ask the administrator.</translation>
    </message>
    <message>
        <source>内存不足，密码没有保存！</source>
        <translation>Out of memory, the password was not saved.</translation>
    </message>
    <message>
        <source>会员卡 %1 已不在数据文件中，余额没有保存！</source>
        <translation>Member card %1 is no longer in the data file, the balance was not saved.</translation>
    </message>
    <message>
        <source>应是编码，不能空着，不超过 255 个字，不能有换行等控制字符，也不能是科学计数法</source>
        <translation>should be a code: not empty, at most 255 characters, no line ends or other control characters, no scientific notation</translation>
    </message>
    <message>
        <source>应是文字，不能空着，不超过 255 个字，也不能有换行等控制字符</source>
        <translation>should be text: not empty, at most 255 characters, no line ends or other control characters</translation>
    </message>
    <message>
        <source>应是文字，不超过 255 个字，也不能有换行等控制字符</source>
        <translation>should be text: at most 255 characters, no line ends or other control characters</translation>
    </message>
    <message>
        <source>应是不小于 0 的金额</source>
        <translation>should be an amount that is not negative</translation>
    </message>
    <message>
        <source>应是金额</source>
        <translation>should be an amount</translation>
    </message>
    <message>
        <source>应是大于 0、不超过 1 的折扣系数（九折写 0.9）</source>
        <translation>should be a discount factor above 0 and at most 1 (0.9 is 10 % off)</translation>
    </message>
    <message>
        <source>应是数量</source>
        <translation>should be a quantity</translation>
    </message>
    <message>
        <source>应是 1 到 32767 的整数</source>
        <translation>should be a whole number from 1 to 32767</translation>
    </message>
    <message>
        <source>应是 -32768 到 32767 的整数</source>
        <translation>should be a whole number from -32768 to 32767</translation>
    </message>
    <message>
        <source>应是大于 0 的整数</source>
        <translation>should be a whole number above 0</translation>
    </message>
    <message>
        <source>应是 0 或 1</source>
        <translation>should be 0 or 1</translation>
    </message>
    <message>
        <source>应是日期，例如 2026-11-22 或 2026-11-22 09:05:03</source>
        <translation>should be a date, like 2026-11-22 or 2026-11-22 09:05:03</translation>
    </message>
    <message>
        <source>商品编码和条码都空着</source>
        <translation>both the goods code and the barcode are empty</translation>
    </message>
    <message>
        <source>与前面的一行是同一种商品、同一个条码</source>
        <translation>the same goods and the same barcode stand in a line before</translation>
    </message>
    <message>
        <source>条码 %1 属于几种商品，要写明商品编码</source>
        <translation>the barcode %1 belongs to several goods, so the goods code has to be given</translation>
    </message>
    <message>
        <source>是新的，但表里没有“%1”这一列</source>
        <translation>new, but the sheet has no column &quot;%1&quot;</translation>
    </message>
    <message>
        <source>表是空的，第一行应是列名。</source>
        <translation>The sheet is empty; its first line should be headings.</translation>
    </message>
    <message>
        <source>表里没有“商品编码”，也没有“条码”，不知道是哪种商品。</source>
        <translation>The sheet has neither &quot;商品编码&quot; (goods code) nor &quot;条码&quot; (barcode), so nobody knows which goods it means.</translation>
    </message>
    <message>
        <source>列名对应的名字不能空着，不能超过 255 个字，也不能有控制字符。</source>
        <translation>The name of a mapping can&apos;t be empty, longer than 255 characters or have control characters.</translation>
    </message>
    <message>
        <source>没有叫“%1”的列名对应。</source>
        <translation>There is no mapping named &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>列名对应“%1”不是这张表的：%2</source>
        <translation>The mapping &quot;%1&quot; is not for this sheet: %2</translation>
    </message>
    <message>
        <source>有 %1 列，标题行有 %2 列</source>
        <translation>there are %1 columns, the headings have %2</translation>
    </message>
    <message>
        <source>有箱条码，却没有“每箱”的数量</source>
        <translation>there is a case barcode, but no &quot;每箱&quot; (units per case)</translation>
    </message>
    <message>
        <source>有箱条码，却没有“箱价”</source>
        <translation>there is a case barcode, but no &quot;箱价&quot; (case price)</translation>
    </message>
    <message>
        <source>箱条码和条码相同</source>
        <translation>the case barcode is the barcode</translation>
    </message>
    <message>
        <source>上一次导入还没有写完，请稍后再试。</source>
        <translation>The last import is still being written. Please try again later.</translation>
    </message>
    <message>
        <source>有另一个导入开始了，这一个什么也没有写入。</source>
        <translation>Another import has begun, so this one wrote nothing.</translation>
    </message>
    <message>
        <source>第 %1 行</source>
        <translation>Line %1</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>分号</source>
        <translation>semicolons</translation>
    </message>
    <message>
        <source>制表符</source>
        <translation>tabs</translation>
    </message>
    <message>
        <source>中文逗号</source>
        <translation>Chinese commas</translation>
    </message>
    <message>
        <source>竖线</source>
        <translation>vertical bars</translation>
    </message>
    <message>
        <source>中文分号</source>
        <translation>Chinese semicolons</translation>
    </message>
    <message>
        <source>
……后面的行没有再看。</source>
        <translation>
… the lines after these were not looked at.</translation>
    </message>
    <message>
        <source>什么也没有导入：
%1</source>
        <translation>Nothing was imported:
%1</translation>
    </message>
    <message>
        <source>文件是空的，第一行应是列名。</source>
        <translation>The file is empty; its first line should be column names.</translation>
    </message>
    <message>
        <source>列“%1”写了两次，什么也没有导入。</source>
        <translation>The column &quot;%1&quot; is there twice. Nothing was imported.</translation>
    </message>
    <message>
        <source>缺少“%1”这一列，什么也没有导入。</source>
        <translation>The column &quot;%1&quot; is missing. Nothing was imported.</translation>
    </message>
    <message>
        <source>各列之间要用英文逗号分开，这个文件用的是%1，什么也没有导入。请另存为逗号分隔的 CSV 文件。</source>
        <translation>Columns have to be separated by commas, but this file uses %1. Nothing was imported. Please save it as a comma-separated CSV file.</translation>
    </message>
    <message>
        <source>表 %1 没有“%2”这一列，什么也没有导入。可以有的列：%3。</source>
        <translation>The table %1 has no column &quot;%2&quot;. Nothing was imported. Columns can be: %3.</translation>
    </message>
    <message>
        <source>商品资料 spda 里没有编码 %1，这样的条码卖了也查不到；请先导入 spda，或者在同一个命令里一起导入</source>
        <translation>the goods table spda has no code %1, and a barcode like this could be sold but never found in a query; please import spda first, or both in one command</translation>
    </message>
    <message>
        <source>商品资料 spda 里没有编码 %1</source>
        <translation>the goods table spda has no code %1</translation>
    </message>
    <message>
        <source>%1存不进去，什么也没有导入：%2</source>
        <translation>%1 can&apos;t be stored, nothing was imported: %2</translation>
    </message>
    <message>
        <source>是新的，但文件缺少“%1”这一列</source>
        <translation>new, but the file has no column &quot;%1&quot;</translation>
    </message>
    <message>
        <source>与前面的一行主键相同，同一个文件里只能有一行</source>
        <translation>the key is that of a line before; a file can have it only once</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>文件读不出来：%1</source>
        <translation>The file can&apos;t be read: %1</translation>
    </message>
    <message>
        <source>条码</source>
        <translation>barcode</translation>
    </message>
    <message>
        <source>商品名称</source>
        <translation>goods name</translation>
    </message>
    <message>
        <source>零售价</source>
        <translation>retail price</translation>
    </message>
    <message>
        <source>操作员 %1</source>
        <translation>operator %1</translation>
    </message>
    <message>
        <source>操作员的姓名不能空着，也不能超过 255 个字。</source>
        <translation>An operator&apos;s name can&apos;t be empty or longer than 255 characters.</translation>
    </message>
    <message>
        <source>已经有%1：%2</source>
        <translation>There is already %1: %2</translation>
    </message>
    <message>
        <source>没有%1。</source>
        <translation>There is no %1.</translation>
    </message>
    <message>
        <source>%1还有没结的单据，先让本人在收银台处理完，再删除。</source>
        <translation>There is still an open bill of %1; it has to be settled or voided at the till before the operator is removed.</translation>
    </message>
    <message>
        <source>条码 %1 的校验位不对，可能抄错了</source>
        <translation>the barcode %1 has a wrong check digit and may be mistyped</translation>
    </message>
    <message>
        <source>促销的结束日期 jssj 早于开始日期 kssj，永远不会生效</source>
        <translation>the promotion ends (jssj) before it begins (kssj) and will never count</translation>
    </message>
    <message>
        <source>有促销日期，促销价 cxj 却空着或者是 0，促销期间会要求收银员输入价格</source>
        <translation>there are promotion dates, but the promotion price cxj is empty or 0, so the cashier will be asked for a price</translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
    <message>
        <source>这是旧格式的工作簿（.xls）或者加了密码，请另存为不加密码的 .xlsx 文件。</source>
        <translation>This is an old workbook (.xls) or has a password. Please save it as an .xlsx file without one.</translation>
    </message>
    <message>
        <source>空着</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>里面有控制字符</source>
        <translation>it has control characters</translation>
    </message>
    <message>
        <source>写的是“%1”</source>
        <translation>it is &quot;%1&quot;</translation>
    </message>
    <message>
        <source>“%1”%2，%3</source>
        <translation>&quot;%1&quot; %2; %3</translation>
    </message>
    <message>
        <source>条码和价格</source>
        <translation>barcodes and prices</translation>
    </message>
    <message>
        <source>商品编码</source>
        <translation>goods code</translation>
    </message>
    <message>
        <source>规格</source>
        <translation>specification</translation>
    </message>
    <message>
        <source>产地</source>
        <translation>origin</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>unit</translation>
    </message>
    <message>
        <source>会员价，0 表示没有</source>
        <translation>member price, 0 for none</translation>
    </message>
    <message>
        <source>折扣系数（九折写 0.9），1 表示没有自己的折扣</source>
        <translation>discount factor (0.9 is 10 % off), 1 for none of its own</translation>
    </message>
    <message>
        <source>促销价</source>
        <translation>promotion price</translation>
    </message>
    <message>
        <source>促销第一天</source>
        <translation>first day of the promotion</translation>
    </message>
    <message>
        <source>促销最后一天</source>
        <translation>last day of the promotion</translation>
    </message>
    <message>
        <source>一个销售单位合多少库存单位</source>
        <translation>how many stock units one sales unit is</translation>
    </message>
    <message>
        <source>成本价</source>
        <translation>cost</translation>
    </message>
    <message>
        <source>类别名称</source>
        <translation>category name</translation>
    </message>
    <message>
        <source>商品资料</source>
        <translation>goods</translation>
    </message>
    <message>
        <source>货号</source>
        <translation>item number</translation>
    </message>
    <message>
        <source>商品类别</source>
        <translation>categories</translation>
    </message>
    <message>
        <source>类别号，决定先后</source>
        <translation>category number, decides the order</translation>
    </message>
    <message>
        <source>会员和储值卡</source>
        <translation>members and stored-value cards</translation>
    </message>
    <message>
        <source>会员卡号</source>
        <translation>member card number</translation>
    </message>
    <message>
        <source>姓名</source>
        <translation>name</translation>
    </message>
    <message>
        <source>卡的类别</source>
        <translation>card class</translation>
    </message>
    <message>
        <source>储值卡余额</source>
        <translation>stored-value balance</translation>
    </message>
    <message>
        <source>储值卡密码</source>
        <translation>stored-value password</translation>
    </message>
    <message>
        <source>年龄</source>
        <translation>age</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>address</translation>
    </message>
    <message>
        <source>1 可用，0 停用</source>
        <translation>1 active, 0 disabled</translation>
    </message>
    <message>
        <source>累计消费</source>
        <translation>spent so far</translation>
    </message>
    <message>
        <source>积分</source>
        <translation>points</translation>
    </message>
    <message>
        <source>会员折扣系数</source>
        <translation>member&apos;s discount factor</translation>
    </message>
    <message>
        <source>生日</source>
        <translation>birthday</translation>
    </message>
    <message>
        <source>加入时间</source>
        <translation>joined on</translation>
    </message>
    <message>
        <source>库存</source>
        <translation>stock</translation>
    </message>
    <message>
        <source>库存数量</source>
        <translation>quantity in stock</translation>
    </message>
    <message>
        <source>没有可以导入导出的表：%1</source>
        <translation>There is no table to import or export by the name %1</translation>
    </message>
    <message>
        <source>（主键）</source>
        <translation> (key)</translation>
    </message>
    <message>
        <source>%1%，还要约 %2 秒</source>
        <translation>%1%, about %2 seconds left</translation>
    </message>
    <message>
        <source>%1%，还要约 %2 分钟</source>
        <translation>%1%, about %2 minutes left</translation>
    </message>
    <message>
        <source>这个工作簿读不出来：%1。请用表格软件打开，另存为 .xlsx 文件。</source>
        <translation>This workbook can&apos;t be read: %1. Please open it with a spreadsheet program and save it as .xlsx.</translation>
    </message>
    <message>
        <source>--map 要写成 旧表=新表，或者 旧表.旧列=新列：%1</source>
        <translation>--map is written OLDTABLE=NEWTABLE or OLDTABLE.OLDCOLUMN=NEWCOLUMN: %1</translation>
    </message>
    <message>
        <source>%1没有“%2”。可以写的：%3。</source>
        <translation>%1: there is no &quot;%2&quot;. There are: %3.</translation>
    </message>
    <message>
        <source>Access 文件里的表</source>
        <translation>Tables of the Access file</translation>
    </message>
    <message>
        <source>可以带来的表</source>
        <translation>Tables that can be taken over</translation>
    </message>
    <message>
        <source>--map %1 与前面的 --map 冲突。</source>
        <translation>--map %1 contradicts another --map.</translation>
    </message>
    <message>
        <source>--map %1：表 %2 不带来，先用 --map %3=新表 指出它是哪张表。</source>
        <translation>--map %1: the table %2 is not taken over; say which one it is with --map %3=NEWTABLE first.</translation>
    </message>
    <message>
        <source>表 %1 里的列</source>
        <translation>Columns of the table %1</translation>
    </message>
    <message>
        <source>--map %1：%2的列带不过来。</source>
        <translation>--map %1: a column of the type %2 can&apos;t be taken over.</translation>
    </message>
    <message>
        <source>Access 文件里没有可以带来的表。用 --list 看它有哪些表，用 --map 旧表=新表 指出。</source>
        <translation>The Access file has no table that can be taken over. See its tables with --list and name them with --map OLDTABLE=NEWTABLE.</translation>
    </message>
    <message>
        <source>什么也没有带来：表 %1 里没有 %2 这一列。用 --list 看它有哪些列，用 --map %3.旧列=%4 指出；不要这张表就加上 --skip %5。</source>
        <translation>Nothing was taken over: the table %1 has no column %2. See its columns with --list and name it with --map %3.OLDCOLUMN=%4, or leave the table out with --skip %5.</translation>
    </message>
    <message>
        <source>里的换行等控制字符改成了空格</source>
        <translation>line ends and other control characters were made blanks</translation>
    </message>
    <message>
        <source>有 %1 个字，只带来前 255 个</source>
        <translation>it has %1 characters, only the first 255 were taken</translation>
    </message>
    <message>
        <source>%1，%2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>不是数字</source>
        <translation>not a number</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>text</translation>
    </message>
    <message>
        <source>不知道这位用户的文件夹在哪里（HOME 没有设置）。</source>
        <translation>This user&apos;s folder is not known (HOME is not set).</translation>
    </message>
    <message>
        <source>不能删除 %1：%2</source>
        <translation>%1 can&apos;t be deleted: %2</translation>
    </message>
    <message>
        <source>登录后不再自动打开收银程序。</source>
        <translation>The till no longer starts at login.</translation>
    </message>
    <message>
        <source>这位用户登录后会自动打开收银程序：%1</source>
        <translation>The till starts when this user logs in: %1</translation>
    </message>
    <message>
        <source>执行这个命令的用户登录桌面后，是否自动打开收银程序。请用收银员的账户执行</source>
        <translation>whether the till starts when the user who runs this logs in; please run it as the cashiers&apos; user</translation>
    </message>
    <message>
        <source>开关</source>
        <translation>SWITCH</translation>
    </message>
    <message>
        <source>on 自动打开；off 不自动打开</source>
        <translation>on: start at login; off: don&apos;t</translation>
    </message>
    <message>
        <source>单据 %1 张</source>
        <translation>%1 bills</translation>
    </message>
    <message>
        <source>这里没有每天的备份：%1</source>
        <translation>There are no daily backups here: %1</translation>
    </message>
    <message>
        <source>用哪一个恢复？请输入编号，直接回车不恢复：</source>
        <translation>Which one shall be restored? Its number, or just Enter for none: </translation>
    </message>
    <message>
        <source>没有选备份，什么也没有改。</source>
        <translation>No backup was chosen, nothing was changed.</translation>
    </message>
    <message>
        <source>已备份到 %1，并已打开检查过。</source>
        <translation>Backed up to %1, opened and verified.</translation>
    </message>
    <message>
        <source>备份数据文件并打开检查；收款程序开着也可以。备份的密码与数据文件相同</source>
        <translation>back up the data file and verify it, also while the till is open; the backup has the data file&apos;s password</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>TARGET</translation>
    </message>
    <message>
        <source>备份到这个文件；已有的会被替换</source>
        <translation>back up to this file; one that is there is replaced</translation>
    </message>
    <message>
        <source>--to 要写成 2026-11-22 09:05:03 的样子，写的是“%1”。</source>
        <translation>--to is written like 2026-11-22 09:05:03, not &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>单据 %1 的时间 %2 已改成 %3，商品行跟着改了 %4 行</source>
        <translation>The time of bill %1 was changed from %2 to %3, and %4 lines with it</translation>
    </message>
    <message>
        <source>单据：改正电脑时间错误时留下的日期</source>
        <translation>bills: correct dates that a wrong clock has left</translation>
    </message>
    <message>
        <source>改正一张单据的时间；只改时间还没有到、或者与商品行相差一天以上的</source>
        <translation>correct a bill&apos;s time; only one that lies ahead or more than a day from its lines</translation>
    </message>
    <message>
        <source>收银窗口说“电脑系统时间错误！”时，先看电脑的日期对不对。电脑对了、单据的日期错了，才用这个命令。</source>
        <translation>When the till says &quot;The computer&apos;s clock is wrong.&quot;, see first whether the computer&apos;s date is right. Only when it is and the bill&apos;s is wrong, use this command.</translation>
    </message>
    <message>
        <source>流水号</source>
        <translation>bill numbers</translation>
    </message>
    <message>
        <source>单据的流水号，小票上有</source>
        <translation>the bill&apos;s number, as on the receipt</translation>
    </message>
    <message>
        <source>改成这个时间，例如 &quot;2026-11-22 09:05:03&quot;；不写就用第一行商品的时间</source>
        <translation>change it to this time, like &quot;2026-11-22 09:05:03&quot;; otherwise that of the first line</translation>
    </message>
    <message>
        <source>商品行的时间也不对，要用 --to &quot;年-月-日 时:分:秒&quot; 写明这张单据的时间。</source>
        <translation>The lines&apos; times are wrong too. Please give the bill&apos;s time with --to &quot;YEAR-MONTH-DAY HOUR:MINUTE:SECOND&quot;.</translation>
    </message>
    <message>
        <source>单据 %1</source>
        <translation>bill %1</translation>
    </message>
    <message>
        <source>%1 的时间 %2 没有不对的地方，没有改。</source>
        <translation>There is nothing wrong with the time of %1, %2. It was not changed.</translation>
    </message>
    <message>
        <source>--to 的时间还没有到。</source>
        <translation>The time of --to lies ahead.</translation>
    </message>
    <message>
        <source> 读不出来，收银窗口会因此打不开：%1</source>
        <translation> can&apos;t be read, and the till will not open because of it: %1</translation>
    </message>
    <message>
        <source>商品行 %1（%2）的单据 %3 不存在</source>
        <translation>line %1 (%2) belongs to bill %3, which does not exist</translation>
    </message>
    <message>
        <source> 的商品行 %1（%2）</source>
        <translation>, line %1 (%2): </translation>
    </message>
    <message>
        <source>%1金额是 %2，按单价、数量、折扣应是 %3</source>
        <translation>%1the amount is %2, but by price, quantity and discount it should be %3</translation>
    </message>
    <message>
        <source>%1读不出来：%2</source>
        <translation>%1can&apos;t be read: %2</translation>
    </message>
    <message>
        <source> 的号码不是流水号</source>
        <translation> has a number that is no bill number</translation>
    </message>
    <message>
        <source> 的状态不是未结也不是已结：%1</source>
        <translation> is neither open nor settled: %1</translation>
    </message>
    <message>
        <source> 已结，却还带着收款未存的标记</source>
        <translation> is settled, but still marked as paid and not stored</translation>
    </message>
    <message>
        <source> 还没结账，却已有付款</source>
        <translation> is not settled, but has payments</translation>
    </message>
    <message>
        <source> 没有商品行</source>
        <translation> has no lines</translation>
    </message>
    <message>
        <source> 的数量是 %1，商品行加起来是 %2</source>
        <translation> has a quantity of %1, its lines add up to %2</translation>
    </message>
    <message>
        <source> 的商品金额是 %1，商品行加起来是 %2</source>
        <translation> has goods for %1, its lines add up to %2</translation>
    </message>
    <message>
        <source> 的应收是 %1，商品金额是 %2</source>
        <translation> has %1 due for goods of %2</translation>
    </message>
    <message>
        <source>%1，店里却从来没有设过抹零</source>
        <translation>%1, but the shop never set rounding</translation>
    </message>
    <message>
        <source>%1，抹零到不了这么多</source>
        <translation>%1, which rounding can&apos;t explain</translation>
    </message>
    <message>
        <source>%1，抹零之后却不是整角</source>
        <translation>%1, which is not rounded to 0.1 yuan</translation>
    </message>
    <message>
        <source> 有%1付款 %2，店里却从来没有设过 %3</source>
        <translation> has a payment (%1) of %2, but the shop never set %3</translation>
    </message>
    <message>
        <source> 用储值卡付款，却没有卡号</source>
        <translation> was paid with a stored-value card, but has no card number</translation>
    </message>
    <message>
        <source> 的储值卡付款是 %1，应收是 %2</source>
        <translation> was paid %1 with a stored-value card, due are %2</translation>
    </message>
    <message>
        <source>%1，不够</source>
        <translation>%1, too little</translation>
    </message>
    <message>
        <source>%1，付多了</source>
        <translation>%1, too much</translation>
    </message>
    <message>
        <source> 用储值卡付款，却又有现金 %1</source>
        <translation> was paid with a stored-value card, but has cash of %1 too</translation>
    </message>
    <message>
        <source> 的时间不是年-月-日 时:分:秒的写法：%1</source>
        <translation> has a time that is not written YEAR-MONTH-DAY HOUR:MINUTE:SECOND: %1</translation>
    </message>
    <message>
        <source>；用 tilladmin bill redate 改正</source>
        <translation>; tilladmin bill redate corrects it</translation>
    </message>
    <message>
        <source> 的时间 %1 还没有到，收银窗口会因此打不开（电脑系统时间错误！）%2</source>
        <translation> has the time %1, which lies ahead, and the till will not open because of it (The computer&apos;s clock is wrong.)%2</translation>
    </message>
    <message>
        <source> 的时间 %1 还没有到</source>
        <translation> has the time %1, which lies ahead</translation>
    </message>
    <message>
        <source> 的时间是 %1，第一行商品却是 %2 录入的%3</source>
        <translation> has the time %1, but its first line was rung at %2%3</translation>
    </message>
    <message>
        <source>单据 %1 和 %2 的时间、数量和金额完全相同</source>
        <translation>bills %1 and %2 have the same time, quantity and amount</translation>
    </message>
    <message>
        <source>单据 %1 和 %2 的付款码相同：%3</source>
        <translation>bills %1 and %2 have the same pay code: %3</translation>
    </message>
    <message>
        <source>未结的单据 %1 的操作员 %2 不存在</source>
        <translation>the open bill %1 belongs to operator %2, who does not exist</translation>
    </message>
    <message>
        <source>数据文件损坏：%1</source>
        <translation>the data file is damaged: %1</translation>
    </message>
    <message>
        <source>数据文件里多了本程序没有的东西：%1</source>
        <translation>the data file has something that this program has not: %1</translation>
    </message>
    <message>
        <source>数据文件里少了本程序要用的东西：%1</source>
        <translation>the data file lacks something that this program uses: %1</translation>
    </message>
    <message>
        <source>商品查找索引不对，已重建。</source>
        <translation>The goods search index was wrong and has been rebuilt.</translation>
    </message>
    <message>
        <source>充值 %1 没有完成，卡内余额没有改变：卡号 %2，付款 %3，充值 %4（已提示过收银员）。</source>
        <translation>Top-up %1 was not completed and the balance did not change: card %2, paid %3, credited %4 (a cashier has been told).</translation>
    </message>
    <message>
        <source>充值 %1 没有完成，卡内余额没有改变：卡号 %2，付款 %3，充值 %4；下次打开收银窗口时提示收银员。</source>
        <translation>Top-up %1 was not completed and the balance did not change: card %2, paid %3, credited %4; a cashier will be told when the sale screen opens next.</translation>
    </message>
    <message>
        <source>请看一看：%1。</source>
        <translation>Please look at this: %1.</translation>
    </message>
    <message>
        <source>已检查 %1%</source>
        <translation>%1% checked</translation>
    </message>
    <message>
        <source>有 %1 张单据已收款、还没存完：正在结账，或者下次打开收银窗口时补存。</source>
        <translation>%1 bills are paid and not stored yet: they are being settled, or are stored when the sale screen opens next.</translation>
    </message>
    <message>
        <source>发现 %1 处问题。</source>
        <translation>%1 problems found.</translation>
    </message>
    <message>
        <source>账目正确：单据 %1 张（其中未结 %2 张），商品行 %3 行，退货 %4 笔，库存 %5 条。</source>
        <translation>The books are right: %1 bills (%2 of them open), %3 lines, %4 returns, %5 rows of stock.</translation>
    </message>
    <message>
        <source>检查数据文件是否完好、账目是否相符；有问题时逐条列出，退出码不为 0</source>
        <translation>check that the data file is sound and the books agree; problems are listed and the exit code is not 0</translation>
    </message>
    <message>
        <source>商品查找索引与商品资料不符时先重建它（账目不会改动；收款程序最好先关掉）</source>
        <translation>rebuild the goods search index first when it disagrees with the goods (the books are not touched; best with the till closed)</translation>
    </message>
    <message>
        <source>没有给出密码。</source>
        <translation>No password was given.</translation>
    </message>
    <message>
        <source>再输一次：</source>
        <translation>Once more: </translation>
    </message>
    <message>
        <source>两次输入的密码不一样。</source>
        <translation>The two passwords are different.</translation>
    </message>
    <message>
        <source>已建立演示店铺的数据文件 %1</source>
        <translation>Made the demo shop&apos;s data file %1</translation>
    </message>
    <message>
        <source>已建立数据文件 %1</source>
        <translation>Made the data file %1</translation>
    </message>
    <message>
        <source>建立新的数据文件（不会覆盖已有的文件）</source>
        <translation>make a new data file (one that is there is never replaced)</translation>
    </message>
    <message>
        <source>填入演示店铺：商品、会员、操作员和小票文字</source>
        <translation>fill in the demo shop: goods, members, operators and receipt texts</translation>
    </message>
    <message>
        <source>数据文件</source>
        <translation>DATAFILE</translation>
    </message>
    <message>
        <source>店里的数据文件，例如 data/POS.mdb</source>
        <translation>the shop&apos;s data file, like data/POS.mdb</translation>
    </message>
    <message>
        <source>数据文件的密码；不写用内置的，空的表示没有密码。供脚本使用：写在命令行上，同机的人在进程列表里看得到</source>
        <translation>the data file&apos;s password; the built-in one unless given, empty for none. For scripts: others on this machine see it in the list of processes</translation>
    </message>
    <message>
        <source>从终端或标准输入读数据文件的密码</source>
        <translation>read the data file&apos;s password from the terminal or standard input</translation>
    </message>
    <message>
        <source>数据文件的密码：</source>
        <translation>Data file&apos;s password: </translation>
    </message>
    <message>
        <source>写不下去，磁盘可能满了，导出的文件不完整。</source>
        <translation>Writing failed, the disk may be full; the exported file is incomplete.</translation>
    </message>
    <message>
        <source>不能写文件：%1</source>
        <translation>The file can&apos;t be written: %1</translation>
    </message>
    <message>
        <source>不能把数据文件本身当作导出的文件。</source>
        <translation>The data file itself can&apos;t be the exported file.</translation>
    </message>
    <message>
        <source>已导出 %1：%2 行</source>
        <translation>Exported %1: %2 rows</translation>
    </message>
    <message>
        <source>把一张表导出为 CSV 文件（UTF-8，第一行是列名），可以再导入</source>
        <translation>export a table as a CSV file (UTF-8, column names in the first line), which can be imported again</translation>
    </message>
    <message>
        <source>CSV文件</source>
        <translation>CSVFILE</translation>
    </message>
    <message>
        <source>导出的文件；- 表示标准输出</source>
        <translation>the exported file; - for standard output</translation>
    </message>
    <message>
        <source>导出哪张表：SP_LB、spda、tmda、member 或 stock</source>
        <translation>which table: SP_LB, spda, tmda, member or stock</translation>
    </message>
    <message>
        <source>没有“%1”这个字段。</source>
        <translation>There is no field &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>表里没有“%1”这一列。</source>
        <translation>The sheet has no column &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>表里的列：</source>
        <translation>Columns of the sheet:</translation>
    </message>
    <message>
        <source>（不读）</source>
        <translation>(not read)</translation>
    </message>
    <message>
        <source>零售价 %1 → %2</source>
        <translation>Retail price %1 → %2</translation>
    </message>
    <message>
        <source>%1 %2 行：</source>
        <translation>%1, %2 lines:</translation>
    </message>
    <message>
        <source>  第 %1 行  %2</source>
        <translation>  line %1  %2</translation>
    </message>
    <message>
        <source>  ……还有 %1 行</source>
        <translation>  … and %1 more lines</translation>
    </message>
    <message>
        <source>新增</source>
        <translation>New</translation>
    </message>
    <message>
        <source>改动</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>不变 %1 行</source>
        <translation>Unchanged, %1 lines</translation>
    </message>
    <message>
        <source>可能有错</source>
        <translation>Doubtful</translation>
    </message>
    <message>
        <source>不能导入</source>
        <translation>Refused</translation>
    </message>
    <message>
        <source>要写入吗？（是/否）</source>
        <translation>Write this? (yes/no) </translation>
    </message>
    <message>
        <source>什么也没有写入：请先改正不能导入的行。</source>
        <translation>Nothing was written: please correct the refused lines first.</translation>
    </message>
    <message>
        <source>什么也没有写入：看过以后要写入，加上 --yes。</source>
        <translation>Nothing was written: add --yes to write what you have seen.</translation>
    </message>
    <message>
        <source>什么也没有写入。</source>
        <translation>Nothing was written.</translation>
    </message>
    <message>
        <source>已导入商品：新增 %1 行，改动 %2 行，不变 %3 行</source>
        <translation>Goods imported: %1 new, %2 changed, %3 unchanged</translation>
    </message>
    <message>
        <source>（名字里有控制字符）</source>
        <translation>(control characters in its name)</translation>
    </message>
    <message>
        <source>%1  链接表，数据在别的文件里</source>
        <translation>%1  a linked table, its data is in another file</translation>
    </message>
    <message>
        <source>%1  %2 行</source>
        <translation>%1  %2 rows</translation>
    </message>
    <message>
        <source>  %1（%2）</source>
        <translation>  %1 (%2)</translation>
    </message>
    <message>
        <source> 不带</source>
        <translation> left out</translation>
    </message>
    <message>
        <source>，不带</source>
        <translation>, left out</translation>
    </message>
    <message>
        <source>  缺少 %1，用 --map 指出</source>
        <translation>  lacks %1, name it with --map</translation>
    </message>
    <message>
        <source>已带来 %1 -&gt; %2：%3 行，没有带来 %4 行</source>
        <translation>Taken over %1 -&gt; %2: %3 rows, %4 left out</translation>
    </message>
    <message>
        <source>没有带来的列：%1.%2</source>
        <translation>Column left out: %1.%2</translation>
    </message>
    <message>
        <source>没有带来的表：%1</source>
        <translation>Table left out: %1</translation>
    </message>
    <message>
        <source>操作员和店铺参数没有带来，请用 tilladmin operator 和 tilladmin param 设置。最后请用 tilladmin check 检查一遍账目。</source>
        <translation>Operators and shop parameters were not taken over; please set them with tilladmin operator and tilladmin param. At last examine the books with tilladmin check.</translation>
    </message>
    <message>
        <source>%1 已读 %2 行</source>
        <translation>%1: %2 rows read</translation>
    </message>
    <message>
        <source>从 Access 数据文件搬家：带来商品、会员和单据，全部成功才算数</source>
        <translation>move in from an Access data file: goods, members and bills, all or nothing</translation>
    </message>
    <message>
        <source>同名的表和列互相对应（不分大小写）：SP_LB、spda、tmda、stock、member、sell、sellProducts、cardStored。名字不同的用 --map 指出。数据文件先用 tilladmin create 建好，里面这些表要是空的；Access 文件只读不写，只设了密码的也读得了，加密的要先去掉密码另存一份。
没有写数据文件时只列出 Access 文件里有什么：
  tilladmin import-access 旧.mdb
  tilladmin import-access 旧.mdb data/POS.mdb --map 会员表=member --map 会员表.姓名=name</source>
        <translation>Tables and columns of the same names are matched (whatever their case): SP_LB, spda, tmda, stock, member, sell, sellProducts, cardStored. Others are named with --map. First make the data file with tilladmin create; these tables have to be empty in it. The Access file is only read; one with a password can be read, an encrypted one has to be saved without encryption.
Without a data file, what is in the Access file is listed:
  tilladmin import-access OLD.mdb
  tilladmin import-access OLD.mdb data/POS.mdb --map customers=member --map customers.fullname=name</translation>
    </message>
    <message>
        <source>Access文件</source>
        <translation>ACCESSFILE</translation>
    </message>
    <message>
        <source>旧程序的 .mdb 文件</source>
        <translation>the old program&apos;s .mdb file</translation>
    </message>
    <message>
        <source>旧表=新表，或者 旧表.旧列=新列；可以写几次</source>
        <translation>OLDTABLE=NEWTABLE or OLDTABLE.OLDCOLUMN=NEWCOLUMN; can be given several times</translation>
    </message>
    <message>
        <source>不带哪张表（新表名）；可以写几次</source>
        <translation>which table to leave out (its new name); can be given several times</translation>
    </message>
    <message>
        <source>只列出有哪些表和列、哪些会带来</source>
        <translation>just list the tables and columns and what would be taken over</translation>
    </message>
    <message>
        <source>有 %1 个文件，却写了 %2 个 --table；一个 --table 配一个文件。</source>
        <translation>There are %1 files, but %2 --table were given; each file needs one.</translation>
    </message>
    <message>
        <source>已读 %1 行（%2%）</source>
        <translation>%1 rows read (%2%)</translation>
    </message>
    <message>
        <source>……还有 %1 行也要看一看。</source>
        <translation>… and %1 more lines to look at.</translation>
    </message>
    <message>
        <source>已导入 %1：新增 %2 行，更新 %3 行</source>
        <translation>Imported %1: %2 new rows, %3 updated</translation>
    </message>
    <message>
        <source>已有会员的余额、密码、累计消费和积分没有动；要照文件改，加上 --replace-accounts。</source>
        <translation>Balances, passwords, purchases and points of members that were there are untouched; add --replace-accounts to take them from the file.</translation>
    </message>
    <message>
        <source>商品表一次导入一个文件；几个文件要各配一个 --table。</source>
        <translation>Goods sheets are imported one at a time; several files need a --table each.</translation>
    </message>
    <message>
        <source>商品表：不问，直接写入</source>
        <translation>goods sheet: write without asking</translation>
    </message>
    <message>
        <source>商品表：用存过的列名对应</source>
        <translation>goods sheet: use a mapping that was saved</translation>
    </message>
    <message>
        <source>商品表：把列名对应存成这个名字</source>
        <translation>goods sheet: save the mapping by this name</translation>
    </message>
    <message>
        <source>商品表：列名=字段，写明一列是什么；字段空着就不读。可以写几次</source>
        <translation>goods sheet: HEADING=FIELD says what a column is; no field: it is not read. Can be given several times</translation>
    </message>
    <message>
        <source>从表格文件导入商品，或者从 CSV 文件导入一张表；全部成功才算数</source>
        <translation>import a goods sheet, or a table from a CSV file; all or nothing</translation>
    </message>
    <message>
        <source>不写 --table，文件就是一张商品表（.xlsx 或 .csv），第一行是列名：
  %1
别的列名会猜，先给您看；写入以前先列出新增、改动、不变和不能导入的行，问过才写。
  tilladmin import 数据文件 商品.xlsx
不是在终端上，又没有写 --yes，就只列出，什么也不写入，退出码是 3。

写了 --table 时，第一行是列名，各列用英文逗号分开，编码 UTF-8 或 GBK。主键已有的行更新，没有的新增；文件里没有的列不动。
有一行不对就什么也不导入，并说明是第几行、错在哪里。条码的商品编码要在 spda 里，没有时一起导入：
  tilladmin import 数据文件 --table spda 商品.csv --table tmda 条码.csv

%2</source>
        <translation>Without --table the file is a goods sheet (.xlsx or .csv) with headings in its first line:
  %1
Other headings are guessed and shown to you; new, changed, unchanged and refused lines are listed before anything is written, and you are asked.
  tilladmin import DATAFILE goods.xlsx
Not on a terminal and without --yes they are only listed, nothing is written, and the exit code is 3.

With --table the first line is column names, columns are separated by commas, in UTF-8 or GBK. Rows whose key is there are updated, others added; columns that the file lacks stay as they are.
One wrong line, and nothing is imported; it says which line and what is wrong. The goods codes of barcodes have to be in spda, or come with them:
  tilladmin import DATAFILE --table spda goods.csv --table tmda barcodes.csv

%2</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>要导入的文件；有 --table 时各配一个</source>
        <translation>the file to import; with --table one for each</translation>
    </message>
    <message>
        <source>导入到哪张表：SP_LB、spda、tmda、member 或 stock；可以写几次</source>
        <translation>which table to import into: SP_LB, spda, tmda, member or stock; can be given several times</translation>
    </message>
    <message>
        <source>已有会员的余额、密码、累计消费和积分也照文件改（平时不动，免得把花掉的钱又加回来）</source>
        <translation>take balances, passwords, purchases and points of members that are there from the file too (else untouched, so that spent money doesn&apos;t come back)</translation>
    </message>
    <message>
        <source>商品行 %1（单据 %2）是 %3</source>
        <translation>line %1 (bill %2) was rung at %3</translation>
    </message>
    <message>
        <source>%1 录入的，这个时间还没有到</source>
        <translation>%1, which lies ahead</translation>
    </message>
    <message>
        <source>%1 录入的，它前面的%2：有一张的时间被改过，或者电脑的时间错过</source>
        <translation>%1, but before it %2: one of the times was changed, or the computer&apos;s clock was wrong</translation>
    </message>
    <message>
        <source>商品资料 spda 里没有编码 %1（%2），却卖过 %3 行，第一张是单据 %4：查询和报表里看不到它们</source>
        <translation>the goods table spda has no code %1 (%2), but %3 lines were sold, first on bill %4: queries and reports don&apos;t show them</translation>
    </message>
    <message>
        <source>商品 %1 在单据 %2 里卖过，库存里却没有它</source>
        <translation>goods %1 were sold on bill %2, but have no stock</translation>
    </message>
    <message>
        <source>单位比例</source>
        <translation>unit ratio</translation>
    </message>
    <message>
        <source>折扣</source>
        <translation>discount</translation>
    </message>
    <message>
        <source>成本</source>
        <translation>cost</translation>
    </message>
    <message>
        <source>退货 %1</source>
        <translation>return %1</translation>
    </message>
    <message>
        <source>%1 所退的商品行 %2 不在单据 %3 里</source>
        <translation>%1 is of line %2, which is not on bill %3</translation>
    </message>
    <message>
        <source>%1 的单据 %2 没有结账</source>
        <translation>%1 is of bill %2, which is not settled</translation>
    </message>
    <message>
        <source>%1 的数量不对：%2</source>
        <translation>%1 has a wrong quantity: %2</translation>
    </message>
    <message>
        <source>%1 的退款是负的：%2</source>
        <translation>%1 has a negative refund: %2</translation>
    </message>
    <message>
        <source>%1 退了 %2，所退的%3只值 %4</source>
        <translation>%1 refunded %2, but its %3 were worth only %4</translation>
    </message>
    <message>
        <source>%1 的%2与所退的商品行 %3（%4）不同</source>
        <translation>%1 has another %2 than line %3 (%4), which it returns</translation>
    </message>
    <message>
        <source>%1 的时间 %2 还没有到</source>
        <translation>%1 has the time %2, which lies ahead</translation>
    </message>
    <message>
        <source>%1 的时间 %2 早于单据 %3 的时间 %4</source>
        <translation>%1 has the time %2, before bill %3 at %4</translation>
    </message>
    <message>
        <source>退货 %1 读不出来：%2</source>
        <translation>return %1 can&apos;t be read: %2</translation>
    </message>
    <message>
        <source>退货 %1 和 %2 的商品行和时间完全相同</source>
        <translation>returns %1 and %2 have the same line and time</translation>
    </message>
    <message>
        <source>单据 %1 的商品行 %2（%3）退的比卖的多，还剩 %4</source>
        <translation>line %2 (%3) of bill %1 has more returned than sold, %4 are left</translation>
    </message>
    <message>
        <source>程序出错，必须结束：%1</source>
        <translation>The program failed and has to end: %1</translation>
    </message>
    <message>
        <source>会员 %1</source>
        <translation>member %1</translation>
    </message>
    <message>
        <source>储值卡 %1 的余额是负的：%2</source>
        <translation>stored-value card %1 has a negative balance: %2</translation>
    </message>
    <message>
        <source>%1 的加入时间 %2 还没有到</source>
        <translation>%1 joined at %2, which lies ahead</translation>
    </message>
    <message>
        <source>%1 读不出来：%2</source>
        <translation>%1 can&apos;t be read: %2</translation>
    </message>
    <message>
        <source>单据 %1 的会员（内部号 %2）不存在</source>
        <translation>bill %1 has a member (internal number %2) who does not exist</translation>
    </message>
    <message>
        <source>单据 %1 的储值卡 %2 不存在</source>
        <translation>bill %1 has a stored-value card %2 that does not exist</translation>
    </message>
    <message>
        <source>充值 %1 的储值卡 %2 不存在</source>
        <translation>top-up %1 has a stored-value card %2 that does not exist</translation>
    </message>
    <message>
        <source>会员 %1 的累计消费是 %2，少于已结单据减去退款的合计 %3（导入时没有改小过，就是漏记）</source>
        <translation>member %1 has spent %2 so far, less than settled bills minus refunds, %3 (unless it was lowered by an import, something was not counted)</translation>
    </message>
    <message>
        <source>储值卡 %1</source>
        <translation>stored-value card %1</translation>
    </message>
    <message>
        <source>%1 的余额是 %2，最后一次充值后是 %3</source>
        <translation>%1 has a balance of %2; after the last top-up it was %3</translation>
    </message>
    <message>
        <source>%1：多出来的钱没有充值记录</source>
        <translation>%1: more money without a top-up</translation>
    </message>
    <message>
        <source>%1，所有单据加起来只付过 %2：少了的钱没有单据</source>
        <translation>%1, but all bills paid only %2 with it: less money without a bill</translation>
    </message>
    <message>
        <source>%1 的金额读不出来：%2</source>
        <translation>%1 has an amount that can&apos;t be read: %2</translation>
    </message>
    <message>
        <source>储值卡 %1 的充值 %2</source>
        <translation>stored-value card %1, top-up %2</translation>
    </message>
    <message>
        <source>%1 的付款金额是负的：%2</source>
        <translation>%1 has a negative payment: %2</translation>
    </message>
    <message>
        <source>%1：充值 %2 之后的余额是 %3，与前一次充值的对不上</source>
        <translation>%1: after %2 were credited the balance is %3, which does not follow from the top-up before</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Password: </translation>
    </message>
    <message>
        <source>已增加操作员 %1 %2</source>
        <translation>Added operator %1 %2</translation>
    </message>
    <message>
        <source>已更改操作员 %1 的密码</source>
        <translation>Changed the password of operator %1</translation>
    </message>
    <message>
        <source>已删除操作员 %1</source>
        <translation>Removed operator %1</translation>
    </message>
    <message>
        <source>用户编号（登录时输入），1 到 32767</source>
        <translation>the user number (for the login), 1 to 32767</translation>
    </message>
    <message>
        <source>登录密码；不写就从终端或标准输入读。供脚本使用：写在命令行上，同机的人在进程列表里看得到</source>
        <translation>the login password; read from the terminal or standard input unless given. For scripts: others on this machine see it in the list of processes</translation>
    </message>
    <message>
        <source>增加操作员</source>
        <translation>add an operator</translation>
    </message>
    <message>
        <source>列出操作员：用户编号、姓名、权限</source>
        <translation>list the operators: user number, name, rights</translation>
    </message>
    <message>
        <source>更改密码</source>
        <translation>change a password</translation>
    </message>
    <message>
        <source>删除操作员</source>
        <translation>remove an operator</translation>
    </message>
    <message>
        <source>	（没有设置，这是默认值）</source>
        <translation>	(not set, this is the default)</translation>
    </message>
    <message>
        <source>要写成 名称=值，写的是“%1”，什么也没有设置。</source>
        <translation>Settings are written NAME=VALUE, not &quot;%1&quot;. Nothing was set.</translation>
    </message>
    <message>
        <source>已设置 %1 个参数</source>
        <translation>%1 parameters set</translation>
    </message>
    <message>
        <source>参数：
</source>
        <translation>Parameters:
</translation>
    </message>
    <message>
        <source>列出全部参数；# 开头的一行说明下一行的参数</source>
        <translation>list all parameters; a line that begins with # explains the next one</translation>
    </message>
    <message>
        <source>设置参数（全部成功才算数）</source>
        <translation>set parameters (all or nothing)</translation>
    </message>
    <message>
        <source>参数名=值</source>
        <translation>NAME=VALUE</translation>
    </message>
    <message>
        <source>可以写几个</source>
        <translation>can be given several times</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>少了一个命令，或者不认识这个命令</source>
        <translation>A command is missing or unknown</translation>
    </message>
    <message>
        <source>命令不完整：没有写 %1</source>
        <translation>The command is incomplete: %1 is missing</translation>
    </message>
    <message>
        <source>%1 后面的值少了或者多了</source>
        <translation>%1 has too few or too many values</translation>
    </message>
    <message>
        <source>用法</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>参数</source>
        <translation>Arguments</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>（必需）</source>
        <translation>(required)</translation>
    </message>
    <message>
        <source>不能同时写</source>
        <translation>Excludes</translation>
    </message>
    <message>
        <source>显示用法</source>
        <translation>show how it is used</translation>
    </message>
    <message>
        <source>有多余或不认识的参数：%1</source>
        <translation>Unknown or superfluous arguments: %1</translation>
    </message>
    <message>
        <source>参数的值不对：%1</source>
        <translation>An argument has a wrong value: %1</translation>
    </message>
    <message>
        <source>%1 和 %2 不能同时写</source>
        <translation>%1 and %2 can&apos;t be given together</translation>
    </message>
    <message>
        <source>命令写得不对</source>
        <translation>The command is not written correctly</translation>
    </message>
    <message>
        <source>只能是 %1，写的是“%2”</source>
        <translation>It can only be %1, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>应是 %1 到 %2 的整数，写的是“%3”</source>
        <translation>It should be a whole number from %1 to %2, not &quot;%3&quot;</translation>
    </message>
    <message>
        <source>不是日期：%1</source>
        <translation>This is no date: %1</translation>
    </message>
    <message>
        <source>--to 的日期比 --from 早。</source>
        <translation>--to is before --from.</translation>
    </message>
    <message>
        <source>xlsx 只能写到文件，请用 --out 写明文件名。</source>
        <translation>xlsx can only be written to a file; please name it with --out.</translation>
    </message>
    <message>
        <source>写不下去，磁盘可能满了，报表不完整。</source>
        <translation>Writing failed, the disk may be full; the report is incomplete.</translation>
    </message>
    <message>
        <source>已统计 %1%</source>
        <translation>%1% added up</translation>
    </message>
    <message>
        <source>不能把数据文件本身当作报表的文件。</source>
        <translation>The data file itself can&apos;t be the report&apos;s file.</translation>
    </message>
    <message>
        <source>已写到 %1</source>
        <translation>Written to %1</translation>
    </message>
    <message>
        <source>经营报表：按日、时段、操作员、分类和商品的营业额和毛利，付款方式，折扣，退货，没有动销和库存不足的商品</source>
        <translation>the owner&apos;s report: takings and gross profit by day, hour, operator, category and goods, kinds of payment, discounts, returns, goods that don&apos;t move or run out</translation>
    </message>
    <message>
        <source>从哪天起；不写从本月一日起</source>
        <translation>from which day; from the first of this month unless given</translation>
    </message>
    <message>
        <source>到哪天止（含这一天）；不写到今天</source>
        <translation>to which day (included); to today unless given</translation>
    </message>
    <message>
        <source>text、csv、xlsx 或 html；不写是 text</source>
        <translation>text, csv, xlsx or html; text unless given</translation>
    </message>
    <message>
        <source>写到哪个文件，- 表示标准输出；不写时 text 和 csv 写到标准输出，xlsx 和 html 写到当前文件夹，文件名里有日期</source>
        <translation>which file to write, - for standard output; unless given, text and csv go to standard output, xlsx and html to the present folder under a name with the dates</translation>
    </message>
    <message>
        <source>到最后一天为止多少天没有卖过算没有动销；不写看整个期间</source>
        <translation>goods not sold for how many days up to the last one don&apos;t move; the whole period unless given</translation>
    </message>
    <message>
        <source>库存少于多少算不足；不写是 10</source>
        <translation>stock below how much is low; 10 unless given</translation>
    </message>
    <message>
        <source>每张商品表最多列多少种；不写是 100</source>
        <translation>how many goods each table lists at most; 100 unless given</translation>
    </message>
    <message>
        <source>已用 %1 恢复 %2。</source>
        <translation>Restored %2 from %1.</translation>
    </message>
    <message>
        <source>原来的文件留在 %1。</source>
        <translation>The old file is kept as %1.</translation>
    </message>
    <message>
        <source>检查备份，用它代替数据文件；原来的文件改名留下。收款程序必须先退出</source>
        <translation>check a backup and put it in the data file&apos;s place, which is kept under another name; the till has to be closed</translation>
    </message>
    <message>
        <source>备份和数据文件；只写数据文件时，列出它旁边 backups 文件夹里每天的备份，从中选一个</source>
        <translation>backup and data file; with the data file alone, its daily backups in the folder backups beside it are listed to choose from</translation>
    </message>
    <message>
        <source>列出这个文件夹里的备份，例如备份盘上的</source>
        <translation>list the backups in this folder, for instance on the backup disk</translation>
    </message>
    <message>
        <source>开店：一问一答，建立新的数据文件（不会覆盖已有的文件）</source>
        <translation>set up a shop by questions and answers: make a new data file (one that is there is never replaced)</translation>
    </message>
    <message>
        <source>没有这个文件，或者不是普通文件。</source>
        <translation>There is no such file, or it is no ordinary file.</translation>
    </message>
    <message>
        <source>请写备份文件的名字。</source>
        <translation>Please write the backup file&apos;s name.</translation>
    </message>
    <message>
        <source>：</source>
        <translation>: </translation>
    </message>
    <message>
        <source>
没有答完，什么也没有建立。</source>
        <translation>
The questions were not all answered. Nothing was made.</translation>
    </message>
    <message>
        <source>请写 1 到 %1。</source>
        <translation>Please write 1 to %1.</translation>
    </message>
    <message>
        <source>%1的姓名，用户编号（登录时输入）是 %2</source>
        <translation>%1&apos;s name; the user number (for the login) is %2</translation>
    </message>
    <message>
        <source>  名称</source>
        <translation>  Name</translation>
    </message>
    <message>
        <source>  零售价</source>
        <translation>  Retail price</translation>
    </message>
    <message>
        <source>备份文件</source>
        <translation>Backup file</translation>
    </message>
    <message>
        <source>店主</source>
        <translation>The owner</translation>
    </message>
    <message>
        <source>第一位收银员（不写就没有）</source>
        <translation>The first cashier (empty for none)</translation>
    </message>
    <message>
        <source>%1 %2（%3）的价格、折扣、比例或促销日期不对</source>
        <translation>%1 %2 (%3) has a wrong price, discount, ratio or promotion date</translation>
    </message>
    <message>
        <source>商品资料 spda 里没有编码 %1，它却有 %2 个条码（%3）：卖出去以后查询和报表里看不到</source>
        <translation>the goods table spda has no code %1, but it has %2 barcodes (%3): once sold, queries and reports don&apos;t show it</translation>
    </message>
    <message>
        <source>商品资料 spda 里没有编码 %1，库存里却有 %2</source>
        <translation>the goods table spda has no code %1, but its stock is %2</translation>
    </message>
    <message>
        <source>商品 %1 的库存不是数字：“%2”</source>
        <translation>the stock of goods %1 is not a number: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>操作员号 %1 不在 1 到 32767 之间</source>
        <translation>operator number %1 is not from 1 to 32767</translation>
    </message>
    <message>
        <source>操作员 %1 的密码是从操作员 %2 那里抄来的</source>
        <translation>the password of operator %1 was copied from operator %2</translation>
    </message>
    <message>
        <source>操作员 %1 的密码不是本程序存的，登录不了</source>
        <translation>the password of operator %1 was not stored by this program and can&apos;t log in</translation>
    </message>
    <message>
        <source>权限 %1 属于不存在的操作员 %2</source>
        <translation>the right %1 belongs to operator %2, who does not exist</translation>
    </message>
    <message>
        <source>操作员 %1 的权限“%2”收款程序不认识</source>
        <translation>operator %1 has a right &quot;%2&quot; that the till doesn&apos;t know</translation>
    </message>
    <message>
        <source>操作员 %1 已不在名单里，有 %2 张已结的单据，最后一张是单据 %3</source>
        <translation>operator %1 is no longer listed, but has %2 settled bills, the last one bill %3</translation>
    </message>
    <message>
        <source>操作员 %1 已不在名单里，办过 %2 笔退货</source>
        <translation>operator %1 is no longer listed, but made %2 returns</translation>
    </message>
    <message>
        <source>店铺参数 %1 的值“%2”不对，没有采用，现在按“%3”</source>
        <translation>the shop parameter %1 has a wrong value &quot;%2&quot;, which is not used; it counts as &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1会重复：最大的是 %2，下一个号却从 %3 数起</source>
        <translation>%1 will come twice: the largest is %2, but the next one is counted from %3</translation>
    </message>
    <message>
        <source>%1用完了：已经发到 %2</source>
        <translation>%1 are used up: the last one was %2</translation>
    </message>
    <message>
        <source>%1少了 %2 条：号码发到 %3，只有 %4 条，是在本程序以外删掉的</source>
        <translation>%1: %2 are missing; numbers were given up to %3, but only %4 are there, so they were deleted outside this program</translation>
    </message>
    <message>
        <source>商品</source>
        <translation>goods</translation>
    </message>
    <message>
        <source>商品行号</source>
        <translation>line numbers</translation>
    </message>
    <message>
        <source>退货号</source>
        <translation>return numbers</translation>
    </message>
    <message>
        <source>会员的内部号</source>
        <translation>internal member numbers</translation>
    </message>
    <message>
        <source>退货记录</source>
        <translation>returns</translation>
    </message>
    <message>
        <source>充值记录</source>
        <translation>top-ups</translation>
    </message>
    <message>
        <source>会员</source>
        <translation>members</translation>
    </message>
    <message>
        <source>%1 张单据的会员不在带来的会员里，单据上不再有会员。</source>
        <translation>The members of %1 bills are not among those taken over; these bills have no member now.</translation>
    </message>
    <message>
        <source>什么也没有带来：数据文件的表 %1 里已经有数据。请用 tilladmin create 建一个新的数据文件，带到那里；不要这张表就加上 --skip %2。</source>
        <translation>Nothing was taken over: the table %1 of the data file has rows already. Please make a new data file with tilladmin create and take it over into that, or leave the table out with --skip %2.</translation>
    </message>
    <message>
        <source>（%1）</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1 是%2，不是%3</source>
        <translation>%1 is %2, not %3</translation>
    </message>
    <message>
        <source>%1 空着</source>
        <translation>%1 is empty</translation>
    </message>
    <message>
        <source>号码不是大于 0 的整数</source>
        <translation>the number is not a whole number above 0</translation>
    </message>
    <message>
        <source>单据 %1 没有带来</source>
        <translation>bill %1 was not taken over</translation>
    </message>
    <message>
        <source>没有结账（state 是 %1），不带</source>
        <translation>not settled (state is %1), left out</translation>
    </message>
    <message>
        <source>主键与前面的一行相同</source>
        <translation>the key is that of a row before</translation>
    </message>
    <message>
        <source>卡号 %1</source>
        <translation>card %1</translation>
    </message>
    <message>
        <source>单据原来没有 state，都算已结账的。</source>
        <translation>The bills had no state; all count as settled.</translation>
    </message>
    <message>
        <source>单据的 %1 原来没有，是按商品行加起来的。</source>
        <translation>The bills had no %1, which was added up from their lines.</translation>
    </message>
    <message>
        <source>%1 个会员的累计消费原来没有，是按单据加起来的。</source>
        <translation>%1 members had no purchases so far, which were added up from their bills.</translation>
    </message>
    <message>
        <source>库存没有带来，都从 0 数起；可以用 tilladmin import --table stock 导入。</source>
        <translation>Stock was not taken over and is counted from 0; it can be imported with tilladmin import --table stock.</translation>
    </message>
    <message>
        <source>%1 种卖过的商品没有库存，从 0 数起。</source>
        <translation>%1 goods that were sold had no stock, it is counted from 0.</translation>
    </message>
    <message>
        <source>%1 张储值卡的余额与充值和付款的记录对不上，按余额补了一条充值记录（付款 0）。</source>
        <translation>%1 stored-value cards had balances that don&apos;t follow from top-ups and payments; a top-up (paid 0) was added for each.</translation>
    </message>
    <message>
        <source>%1 张单据的应收与商品金额不同，原来抹过零：店铺参数 RoundJiao 现在写明了它的值，抹零照旧不变。</source>
        <translation>%1 bills have another amount due than their goods and had been rounded: the shop parameter RoundJiao now says so, and rounding stays as it was.</translation>
    </message>
    <message>
        <source>单据是这些操作员做的：%1；请用 tilladmin operator add 按原来的号建立他们。</source>
        <translation>The bills were made by these operators: %1; please add them with tilladmin operator add under their old numbers.</translation>
    </message>
    <message>
        <source>店主的工具：建立数据文件，管理操作员和店铺参数，导入导出商品，检查账目，做经营报表。</source>
        <translation>The owner&apos;s tool: make data files, manage operators and shop parameters, import and export goods, check the books, make the owner&apos;s report.</translation>
    </message>
    <message>
        <source>显示版本</source>
        <translation>show the version</translation>
    </message>
    <message>
        <source>%1。用 tilladmin --help 或 tilladmin 命令 --help 看用法。</source>
        <translation>%1. See tilladmin --help or tilladmin COMMAND --help.</translation>
    </message>
    <message>
        <source>的目录读不出来</source>
        <translation>&apos;s catalog can&apos;t be read</translation>
    </message>
    <message>
        <source>单据 %1 张，最后一张 %2</source>
        <translation>%1 bills, the last one of %2</translation>
    </message>
    <message>
        <source>收银程序的更多功能里有练习，练习不入账：0 否，1 是</source>
        <translation>practice among the till&apos;s further functions, outside the books: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>操作员没有权限的操作要有人授权：0 否，1 是</source>
        <translation>what an operator may not do, somebody has to approve: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>记日志：每笔业务一条，只增不改，check 拿账目和它核对；打开时收银程序先退出：0 否，1 是</source>
        <translation>keep a journal: an entry for all that is done, never changed, which check compares with the books; end the till before turning it on: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>没有这张员工卡！</source>
        <translation>There is no such staff card.</translation>
    </message>
    <message>
        <source>日志开始</source>
        <translation>Journal begun</translation>
    </message>
    <message>
        <source>起点账面</source>
        <translation>First books</translation>
    </message>
    <message>
        <source>日志停用</source>
        <translation>Journal ended</translation>
    </message>
    <message>
        <source>登录</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>登录被拒</source>
        <translation>Login refused</translation>
    </message>
    <message>
        <source>退出登录</source>
        <translation>Logout</translation>
    </message>
    <message>
        <source>开单</source>
        <translation>Bill begun</translation>
    </message>
    <message>
        <source>手输单价</source>
        <translation>Price typed</translation>
    </message>
    <message>
        <source>减少数量</source>
        <translation>Less quantity</translation>
    </message>
    <message>
        <source>改折扣</source>
        <translation>New discount</translation>
    </message>
    <message>
        <source>删除商品行</source>
        <translation>Line deleted</translation>
    </message>
    <message>
        <source>撤消单据</source>
        <translation>Bill voided</translation>
    </message>
    <message>
        <source>挂单</source>
        <translation>Bill held</translation>
    </message>
    <message>
        <source>调入挂单</source>
        <translation>Bill recalled</translation>
    </message>
    <message>
        <source>储值卡付款</source>
        <translation>Card charged</translation>
    </message>
    <message>
        <source>结账</source>
        <translation>Bill settled</translation>
    </message>
    <message>
        <source>补存结账</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>改单据时间</source>
        <translation>Bill redated</translation>
    </message>
    <message>
        <source>退货</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>充值收款</source>
        <translation>Top-up paid</translation>
    </message>
    <message>
        <source>充值到账</source>
        <translation>Credited</translation>
    </message>
    <message>
        <source>增加会员</source>
        <translation>Member added</translation>
    </message>
    <message>
        <source>修改会员</source>
        <translation>Member edited</translation>
    </message>
    <message>
        <source>开钱箱</source>
        <translation>Drawer opened</translation>
    </message>
    <message>
        <source>补打小票</source>
        <translation>Reprint</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>经营报表</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>改本机设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>设店铺参数</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>修改操作员</source>
        <translation>Operator changed</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>设库存</source>
        <translation>Stock set</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Restored</translation>
    </message>
    <message>
        <source>时钟倒退</source>
        <translation>Clock set back</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 行</source>
        <translation>%1 lines</translation>
    </message>
    <message>
        <source>应收</source>
        <translation>due</translation>
    </message>
    <message>
        <source>会员内部号</source>
        <translation>internal member number</translation>
    </message>
    <message>
        <source>商品行</source>
        <translation>line</translation>
    </message>
    <message>
        <source>数量</source>
        <translation>quantity</translation>
    </message>
    <message>
        <source>退款</source>
        <translation>refund</translation>
    </message>
    <message>
        <source>卡号</source>
        <translation>card</translation>
    </message>
    <message>
        <source>付款</source>
        <translation>paid</translation>
    </message>
    <message>
        <source>充值</source>
        <translation>top-up</translation>
    </message>
    <message>
        <source>编号</source>
        <translation>number</translation>
    </message>
    <message>
        <source>权限</source>
        <translation>rights</translation>
    </message>
    <message>
        <source>余额变动</source>
        <translation>balance changed by</translation>
    </message>
    <message>
        <source>%1 种商品的库存</source>
        <translation>stock of %1 goods</translation>
    </message>
    <message>
        <source>%1 位会员</source>
        <translation>%1 members</translation>
    </message>
    <message>
        <source>%1 位操作员</source>
        <translation>%1 operators</translation>
    </message>
    <message>
        <source>%1 笔退货</source>
        <translation>%1 returns</translation>
    </message>
    <message>
        <source>%1 笔充值</source>
        <translation>%1 top-ups</translation>
    </message>
    <message>
        <source>单据 %1 到 %2</source>
        <translation>bills %1 to %2</translation>
    </message>
    <message>
        <source>从</source>
        <translation>from</translation>
    </message>
    <message>
        <source>到</source>
        <translation>to</translation>
    </message>
    <message>
        <source>合计</source>
        <translation>total</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>updated</translation>
    </message>
    <message>
        <source>行数</source>
        <translation>lines</translation>
    </message>
    <message>
        <source>备份</source>
        <translation>backup</translation>
    </message>
    <message>
        <source>原文件</source>
        <translation>old file</translation>
    </message>
    <message>
        <source>%1 改成 %2</source>
        <translation>%1 changed to %2</translation>
    </message>
    <message>
        <source>内容读不出来</source>
        <translation>the contents can&apos;t be read</translation>
    </message>
    <message>
        <source>收银</source>
        <translation>sell</translation>
    </message>
    <message>
        <source>打折和优惠</source>
        <translation>discounts</translation>
    </message>
    <message>
        <source>手工定价</source>
        <translation>typed prices</translation>
    </message>
    <message>
        <source>负数量</source>
        <translation>negative quantities</translation>
    </message>
    <message>
        <source>删行和撤单</source>
        <translation>delete lines and void bills</translation>
    </message>
    <message>
        <source>会员充值</source>
        <translation>top up cards</translation>
    </message>
    <message>
        <source>销售查询和导出</source>
        <translation>query and export sales</translation>
    </message>
    <message>
        <source>会员资料</source>
        <translation>members</translation>
    </message>
    <message>
        <source>设置和导入商品</source>
        <translation>settings and goods import</translation>
    </message>
    <message>
        <source>交班</source>
        <translation>hand-over</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>the journal</translation>
    </message>
    <message>
        <source>店主工具</source>
        <translation>Owner&apos;s tool</translation>
    </message>
    <message>
        <source>只能是 %1、%2（全部）；discount、return 后面可以写上限（discount:10）。写的是“%3”</source>
        <translation>It can only be %1 or %2 (all of them); a limit can stand behind discount and return (discount:10). It is &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1（%2，可以写最多百分之几：%1:10）</source>
        <translation>%1 (%2, up to so many per cent: %1:10)</translation>
    </message>
    <message>
        <source>%1（%2，可以写最多多少元：%1:200）</source>
        <translation>%1 (%2, up to so many yuan: %1:200)</translation>
    </message>
    <message>
        <source>%1，或者 %2（全部）</source>
        <translation>%1, or %2 (all of them)</translation>
    </message>
    <message>
        <source>账目正确：单据 %1 张（其中未结 %2 张），商品行 %3 行，退货 %4 笔，库存 %5 条，日志 %6 条。</source>
        <translation>The books are right: %1 bills (%2 of them open), %3 lines, %4 returns, %5 rows of stock, %6 journal entries.</translation>
    </message>
    <message>
        <source>日志少了第 %1 条</source>
        <translation>entry %1 of the journal is missing</translation>
    </message>
    <message>
        <source>日志少了第 %1 到第 %2 条</source>
        <translation>entries %1 to %2 of the journal are missing</translation>
    </message>
    <message>
        <source>日志第 %1 条</source>
        <translation>entry %1 of the journal</translation>
    </message>
    <message>
        <source>%1与它的校验值不符：它，或者它前面的一条，被改过或删过</source>
        <translation>%1 does not match its seal: it, or the one before it, was changed or deleted</translation>
    </message>
    <message>
        <source>%1的时间 %2 早于前一条的 %3</source>
        <translation>%1 has the time %2, before that of the one before it, %3</translation>
    </message>
    <message>
        <source>日志里没有这一种：%1</source>
        <translation>The journal has no such kind: %1</translation>
    </message>
    <message>
        <source>写不下去，磁盘可能满了，日志不完整。</source>
        <translation>Writing failed, the disk may be full; the journal is incomplete.</translation>
    </message>
    <message>
        <source>种类：</source>
        <translation>Kinds:</translation>
    </message>
    <message>
        <source>列出日志：号码、时间、机号、操作员、批准人、种类、对象、内容，各用制表符分开</source>
        <translation>list the journal: number, time, till, operator, who approved, kind, what, contents, separated by tabs</translation>
    </message>
    <message>
        <source>从哪天起</source>
        <translation>from which day</translation>
    </message>
    <message>
        <source>到哪天止（含这一天）</source>
        <translation>to which day (included)</translation>
    </message>
    <message>
        <source>只列这一种，见下</source>
        <translation>only this kind, see below</translation>
    </message>
    <message>
        <source>只列这位操作员；0 是店主工具</source>
        <translation>only this operator; 0 is the owner&apos;s tool</translation>
    </message>
    <message>
        <source>只列这台收银机</source>
        <translation>only this till</translation>
    </message>
    <message>
        <source>没有</source>
        <translation>none</translation>
    </message>
    <message>
        <source>%1 日志记的是 %2，账上是 %3</source>
        <translation>%1 is %2 in the journal, %3 in the books</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>日志第 %1 条读不出来：%2</source>
        <translation>entry %1 of the journal can&apos;t be read: %2</translation>
    </message>
    <message>
        <source>单据 %1 在日志第 %2 条和第 %3 条之间，在本程序以外改过</source>
        <translation>bill %1 was changed outside this program between the journal&apos;s entries %2 and %3</translation>
    </message>
    <message>
        <source>店铺参数 Journal 是 1，日志却是空的：被删掉了</source>
        <translation>the shop parameter Journal is 1, but the journal is empty: it was deleted</translation>
    </message>
    <message>
        <source>店铺参数 Journal 是 1，日志却停用了</source>
        <translation>the shop parameter Journal is 1, but the journal was ended</translation>
    </message>
    <message>
        <source>单据 %1 在日志第 %2 条结了账，账上却没有这张已结的单据了</source>
        <translation>bill %1 was settled by the journal&apos;s entry %2, but the books no longer have it as settled</translation>
    </message>
    <message>
        <source>单据 %1 不在日志里：是在本程序以外加进去的</source>
        <translation>bill %1 is not in the journal: it was added outside this program</translation>
    </message>
    <message>
        <source>单据 %1 与日志第 %2 条不符：%3</source>
        <translation>bill %1 differs from the journal&apos;s entry %2: %3</translation>
    </message>
    <message>
        <source>日志开始以前的单据 %1 到 %2 里有改过的：那时有 %3 张已结的，现在有 %4 张</source>
        <translation>of the bills %1 to %2, from before the journal, some were changed: %3 were settled then, %4 are now</translation>
    </message>
    <message>
        <source>未结的单据 %1 没有开单的日志</source>
        <translation>the open bill %1 was begun without a journal entry</translation>
    </message>
    <message>
        <source>单据 %1 开了单，日志里没有结账也没有撤消，账上却没有了</source>
        <translation>bill %1 was begun and neither settled nor voided in the journal, but the books no longer have it</translation>
    </message>
    <message>
        <source>%1 不在日志里：是在本程序以外加进去的</source>
        <translation>%1 is not in the journal: added outside this program</translation>
    </message>
    <message>
        <source>%1 的资料与日志不符：%2</source>
        <translation>%1 differs from the journal: %2</translation>
    </message>
    <message>
        <source>会员 %1 在日志里，账上却没有了</source>
        <translation>member %1 is in the journal, but no longer in the books</translation>
    </message>
    <message>
        <source>%1是 %2，按日志应是 %3</source>
        <translation>%1 is %2, but %3 by the journal</translation>
    </message>
    <message>
        <source>储值卡 %1 的余额</source>
        <translation>the balance of stored-value card %1</translation>
    </message>
    <message>
        <source>会员 %1 的累计消费</source>
        <translation>what member %1 has spent so far</translation>
    </message>
    <message>
        <source>会员 %1 的积分</source>
        <translation>the points of member %1</translation>
    </message>
    <message>
        <source>%1 与日志不符：%2</source>
        <translation>%1 differs from the journal: %2</translation>
    </message>
    <message>
        <source>%1 %2 在日志里，账上却没有了</source>
        <translation>%1 %2 is in the journal, but no longer in the books</translation>
    </message>
    <message>
        <source>店铺参数 %1 是“%2”，按日志没有设过</source>
        <translation>the shop parameter %1 is &quot;%2&quot;, but was never set by the journal</translation>
    </message>
    <message>
        <source>店铺参数 %1 是“%2”，按日志应是“%3”</source>
        <translation>the shop parameter %1 is &quot;%2&quot;, but &quot;%3&quot; by the journal</translation>
    </message>
    <message>
        <source>店铺参数 %1 按日志应是“%2”，现在没有了</source>
        <translation>the shop parameter %1 is &quot;%2&quot; by the journal, but no longer there</translation>
    </message>
    <message>
        <source>不是数字：%1</source>
        <translation>This is no number: %1</translation>
    </message>
    <message>
        <source>操作员 %1 没有员工卡了</source>
        <translation>Operator %1 has no staff card any more</translation>
    </message>
    <message>
        <source>请刷卡：</source>
        <translation>Please swipe the card: </translation>
    </message>
    <message>
        <source>这不是刷卡器读出的卡号：应以“;”开头，以“?”结尾。</source>
        <translation>No card reader gives such a number: it begins with &quot;;&quot; and ends with &quot;?&quot;.</translation>
    </message>
    <message>
        <source>这张卡已经是别的操作员的员工卡了。</source>
        <translation>This is another operator&apos;s staff card already.</translation>
    </message>
    <message>
        <source>操作员 %1 以后可以刷这张卡授权，不用密码</source>
        <translation>Operator %1 can approve with this card from now on, without a password</translation>
    </message>
    <message>
        <source>员工卡：刷卡代替编号和密码，给收银台上的操作授权</source>
        <translation>staff card: approves at the till in place of number and password</translation>
    </message>
    <message>
        <source>用户编号，1 到 32767</source>
        <translation>the user number, 1 to 32767</translation>
    </message>
    <message>
        <source>收回员工卡</source>
        <translation>take the staff card back</translation>
    </message>
    <message>
        <source>商品 %1 的库存是 %2，按日志应是 %3</source>
        <translation>the stock of goods %1 is %2, but %3 by the journal</translation>
    </message>
    <message>
        <source>商品 %1 按日志有库存 %2，库存里却没有它了</source>
        <translation>goods %1 have a stock of %2 by the journal, but are no longer in stock</translation>
    </message>
    <message>
        <source>授权</source>
        <translation>Approved</translation>
    </message>
    <message>
        <source>没有授权</source>
        <translation>Not approved</translation>
    </message>
    <message>
        <source>多少</source>
        <translation>how much</translation>
    </message>
    <message>
        <source>批准人</source>
        <translation>approved by</translation>
    </message>
    <message>
        <source>建不了文件夹 %1：%2</source>
        <translation>The folder %1 can&apos;t be made: %2</translation>
    </message>
    <message>
        <source>那里已经有别的东西。</source>
        <translation>something else is there.</translation>
    </message>
    <message>
        <source>%1 第 %2 行：%3。</source>
        <translation>%1, line %2: %3.</translation>
    </message>
    <message>
        <source>录入的商品（第一种是第 2 行）</source>
        <translation>The goods typed in (the first is line 2)</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>请写文件夹的完整名字，从 / 开始，例如 /media/stick/till；没有就空着。</source>
        <translation>Please write the folder&apos;s full name, beginning with /, like /media/stick/till; leave it empty for none.</translation>
    </message>
    <message>
        <source>收手机扫码付款</source>
        <translation>Payment by telephone code</translation>
    </message>
    <message>
        <source>收款、价格、折扣像打错时先问一声</source>
        <translation>Ask when a figure looks mistyped</translation>
    </message>
    <message>
        <source>库存不够时</source>
        <translation>When stock does not suffice</translation>
    </message>
    <message>
        <source>照卖</source>
        <translation>Sell</translation>
    </message>
    <message>
        <source>不卖</source>
        <translation>Don&apos;t sell</translation>
    </message>
    <message>
        <source>收银台上可以导入商品表（能收银的人都可以）</source>
        <translation>Goods sheets can be imported at the till (by all who may sell)</translation>
    </message>
    <message>
        <source>店主在收银台上看经营报表</source>
        <translation>The owner&apos;s report at the till</translation>
    </message>
    <message>
        <source>退出程序时备份数据文件</source>
        <translation>Back up the data file at the end</translation>
    </message>
    <message>
        <source>每天自动备份一次，留七天和四周</source>
        <translation>A backup each day, kept for seven days and four weeks</translation>
    </message>
    <message>
        <source>备份再抄到哪个 U 盘或移动硬盘的文件夹（没有就空着）</source>
        <translation>Copy backups to a folder on a stick or disk (empty for none)</translation>
    </message>
    <message>
        <source>请写零售价</source>
        <translation>please write the retail price</translation>
    </message>
    <message>
        <source>都对就直接回车；不对的写 列名=字段，不读的写 列名=</source>
        <translation>Enter if all is right; HEADING=FIELD for a wrong one, HEADING= for one not to be read</translation>
    </message>
    <message>
        <source>给这种表起个名字，以后照样读（不写就不记）</source>
        <translation>A name by which sheets like this are read alike later (empty for none)</translation>
    </message>
    <message>
        <source>请先改正不能导入的行。</source>
        <translation>Please correct the refused lines first.</translation>
    </message>
    <message>
        <source>这张表</source>
        <translation>This sheet</translation>
    </message>
    <message>
        <source>用</source>
        <translation>use it</translation>
    </message>
    <message>
        <source>不用</source>
        <translation>don&apos;t use it</translation>
    </message>
    <message>
        <source>商品表的文件（.xlsx 或 .csv，第一行是列名；不写就没有）</source>
        <translation>Goods sheet (.xlsx or .csv, headings in the first line; empty for none)</translation>
    </message>
    <message>
        <source>商品条码或编码（不写就不再录入）</source>
        <translation>Barcode or code of goods (empty for no more)</translation>
    </message>
    <message>
        <source>  单位</source>
        <translation>  Unit</translation>
    </message>
    <message>
        <source>  库存（不写就不记）</source>
        <translation>  In stock (empty: not counted)</translation>
    </message>
    <message>
        <source>%1。这一种没有录入。</source>
        <translation>%1. These goods were not taken.</translation>
    </message>
    <message>
        <source>要写成 列名=字段，写的是“%1”。</source>
        <translation>It is written HEADING=FIELD, not &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>没有写 --right sell，这位操作员不能收银；要能收银，用 tilladmin operator right --give sell 给。</source>
        <translation>Without --right sell this operator may not sell; tilladmin operator right --give sell lets them.</translation>
    </message>
    <message>
        <source>要给什么权限写 --give，要收回什么权限写 --take。</source>
        <translation>Please give a right with --give or take one back with --take.</translation>
    </message>
    <message>
        <source>操作员 %1 现在的权限：%2。已经登录的，下次登录时算数。</source>
        <translation>Rights of operator %1: %2. They count from the next login.</translation>
    </message>
    <message>
        <source>%1，可以写几次：%2</source>
        <translation>%1, can be given several times: %2</translation>
    </message>
    <message>
        <source>操作员：增加、列出、改密码、改权限、员工卡、删除</source>
        <translation>operators: add, list, change passwords and rights, staff cards, remove</translation>
    </message>
    <message>
        <source>给权限，收回权限</source>
        <translation>give rights, take them back</translation>
    </message>
    <message>
        <source>给的权限</source>
        <translation>rights to give</translation>
    </message>
    <message>
        <source>收回的权限</source>
        <translation>rights to take back</translation>
    </message>
    <message>
        <source>%1：</source>
        <translation>%1: </translation>
    </message>
    <message>
        <source>店铺已建好：%1</source>
        <translation>The shop has been made: %1</translation>
    </message>
    <message>
        <source>打印机、钱箱、客显在收银程序的收银设置里选，颜色在功能菜单的颜色设置里选。</source>
        <translation>Printer, drawer and display are chosen in the till&apos;s Device settings, colours in the function menu.</translation>
    </message>
    <message>
        <source>数据文件是店铺文件夹里的 data/POS.mdb 时，也问这台收银机的打印机、钱箱、客显和颜色，存在店铺文件夹的 Config.ini 里。data 文件夹没有就建立。</source>
        <translation>When the data file is data/POS.mdb of a shop&apos;s folder, this till&apos;s printer, drawer, display and colours are asked for too and kept in Config.ini of that folder. The folder data is made if there is none.</translation>
    </message>
    <message>
        <source>往下走</source>
        <translation>go on</translation>
    </message>
    <message>
        <source>试一试打印机、钱箱和客显</source>
        <translation>try printer, drawer and display</translation>
    </message>
    <message>
        <source>重新选</source>
        <translation>choose anew</translation>
    </message>
    <message>
        <source>请写店名，它是小票的第一行。</source>
        <translation>Please enter the shop&apos;s name: it is the receipt&apos;s first line.</translation>
    </message>
    <message>
        <source>不舍入</source>
        <translation>Don&apos;t round</translation>
    </message>
    <message>
        <source>舍入到角</source>
        <translation>Round to 0.1 yuan</translation>
    </message>
    <message>
        <source>舍入到元</source>
        <translation>Round to 1 yuan</translation>
    </message>
    <message>
        <source>全部答完才建立店铺。直接回车用方括号里的答案；按 Ctrl+D 放弃。</source>
        <translation>The shop is made when all is answered. Enter takes the answer in brackets; Ctrl+D gives up.</translation>
    </message>
    <message>
        <source>新店铺</source>
        <translation>A new shop</translation>
    </message>
    <message>
        <source>演示店铺</source>
        <translation>The demo shop</translation>
    </message>
    <message>
        <source>从备份恢复</source>
        <translation>From a backup</translation>
    </message>
    <message>
        <source>有一次商品导入还没有写完，等着写入 %1 行：收银程序下次打开时，或者下次导入商品时，会接着写完</source>
        <translation>an import of goods is not finished and has %1 lines to write: the till finishes it when it is opened next, or the next import does</translation>
    </message>
    <message>
        <source>有一次商品导入没有读完就结束了，或者正在读，读了 %1 行，什么也没有写入：再导入一次这张商品表就行</source>
        <translation>an import of goods ended while the sheet was read, or is being read, after %1 lines; nothing was written: just import the sheet again</translation>
    </message>
    <message>
        <source>现金</source>
        <translation>Cash</translation>
    </message>
    <message>
        <source>银行卡</source>
        <translation>Bank card</translation>
    </message>
    <message>
        <source>扫码</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>付款码</source>
        <translation>Pay code</translation>
    </message>
    <message>
        <source>储值卡</source>
        <translation>Stored value</translation>
    </message>
    <message>
        <source>优惠</source>
        <translation>Discount</translation>
    </message>
    <message>
        <source>还没有开班，不能收款。请回到主菜单，先开班。</source>
        <translation>No shift is open, so no payment can be taken. Go back to the main menu and open one first.</translation>
    </message>
    <message>
        <source>按班次收银：先开班再收款，结班时清点钱箱，出班次表：0 否，1 是</source>
        <translation>work in shifts: open one before selling, count the drawer when closing it, print its sheet: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>开班</source>
        <translation>Shift opened</translation>
    </message>
    <message>
        <source>钱箱存取</source>
        <translation>Cash moved</translation>
    </message>
    <message>
        <source>清点钱箱</source>
        <translation>Drawer counted</translation>
    </message>
    <message>
        <source>结班</source>
        <translation>Shift closed</translation>
    </message>
    <message>
        <source>开班时间</source>
        <translation>opened</translation>
    </message>
    <message>
        <source>开班人</source>
        <translation>opened by</translation>
    </message>
    <message>
        <source>备用金</source>
        <translation>Float</translation>
    </message>
    <message>
        <source>%1 个班次</source>
        <translation>%1 shifts</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>reason</translation>
    </message>
    <message>
        <source>应有</source>
        <translation>should be</translation>
    </message>
    <message>
        <source>清点</source>
        <translation>Counted</translation>
    </message>
    <message>
        <source>长短款</source>
        <translation>over or short</translation>
    </message>
    <message>
        <source>班次</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>单据 %1 笔 %2 元，钱箱现金 %3 元</source>
        <translation>%1 bills of %2 yuan, %3 yuan of cash in the drawer</translation>
    </message>
    <message>
        <source>班次 %1 结班时是%2；按账上的单据、充值、退货和存取款却是%3</source>
        <translation>shift %1 was closed with %2; by the bills, top-ups, returns and moved cash of the books it is %3</translation>
    </message>
    <message>
        <source>少了班次 %1</source>
        <translation>shift %1 is missing</translation>
    </message>
    <message>
        <source>班次 %1 读不出来：%2</source>
        <translation>shift %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>有 %1 个班次没有结班</source>
        <translation>%1 shifts are not closed</translation>
    </message>
    <message>
        <source>%1 %2 属于班次 %3，却没有这个班次</source>
        <translation>%1 %2 belongs to shift %3, but there is no such shift</translation>
    </message>
    <message>
        <source>单据</source>
        <translation>Bills</translation>
    </message>
    <message>
        <source>写不下去，磁盘可能满了，列得不完整。</source>
        <translation>Cannot write any further, the disk may be full; the list is incomplete.</translation>
    </message>
    <message>
        <source>列出结过的班，最近的在前：班次、开班、开班人、结班、结班人、应有、清点、长短款、日志校验值，各用制表符分开</source>
        <translation>lists the closed shifts, the latest first: number, opened, by whom, closed, by whom, what should be there, counted, over or short, hash of the journal, separated by tabs</translation>
    </message>
    <message>
        <source>这台收银机连着店铺的服务器，日志不能停。</source>
        <translation>This till is joined to the shop&apos;s server; its journal can&apos;t be turned off.</translation>
    </message>
    <message>
        <source>打不开 %1：%2</source>
        <translation>%1 can&apos;t be opened: %2</translation>
    </message>
    <message>
        <source>加入码有 20 个字符，写的不是：%1</source>
        <translation>A code has 20 characters; this is none: %1</translation>
    </message>
    <message>
        <source>这台收银机加入了店铺，机号 %1。</source>
        <translation>This till has joined the shop as number %1.</translation>
    </message>
    <message>
        <source>这台收银机加入有服务器的店；收银程序必须先退出，以后一直记日志</source>
        <translation>This till joins a shop with a server; close the till first; it keeps a journal from then on</translation>
    </message>
    <message>
        <source>服务器</source>
        <translation>server</translation>
    </message>
    <message>
        <source>加入码</source>
        <translation>code</translation>
    </message>
    <message>
        <source>服务器传来的 %1 读不懂：%2</source>
        <translation>What the server sent of %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>这是一台收银机的数据文件。请用办公室的数据文件：不加入店铺，商品、会员和操作员都在里面。</source>
        <translation>This is a till&apos;s data file. Use the office&apos;s: it joins no shop, and has the goods, members and operators.</translation>
    </message>
    <message>
        <source>已送 %1 行</source>
        <translation>%1 rows sent</translation>
    </message>
    <message>
        <source>已发布：新增 %1 行，改动 %2 行，删除 %3 行；各台收银机自己来取。</source>
        <translation>Published: %1 rows added, %2 changed, %3 removed; the tills fetch them by themselves.</translation>
    </message>
    <message>
        <source>把办公室数据文件里的商品、会员、操作员和店铺参数发到各台收银机</source>
        <translation>bring goods, members, operators and shop parameters of the office&apos;s data file to the tills</translation>
    </message>
    <message>
        <source>办公室的数据文件是不加入店铺的一个文件：商品、会员、操作员和店铺参数都在里面，tilladmin 的命令照样用。只发上次发布以后改过的；上次发布过、现在没有的，在各台也删掉（会员是停用）。
不发的：库存、余额、累计消费和积分，以及各台自己的参数 Journal、BackupOnExit、GoodsImport。</source>
        <translation>The office&apos;s data file joins no shop: it has the goods, members, operators and shop parameters, and tilladmin&apos;s commands work on it as ever. Only what changed since the last publishing is sent; what was published and is gone is removed at the tills, too (members are blocked).
Not sent: stock, balances, purchases and points, and the tills&apos; own parameters Journal, BackupOnExit, GoodsImport.</translation>
    </message>
    <message>
        <source>这是连着服务器的收银机。商品、会员、操作员和店铺参数在办公室的数据文件里改，再用 tilladmin shop publish 发到各台收银机。</source>
        <translation>This till has a shop&apos;s server. Change goods, members, operators and shop parameters in the office&apos;s data file, then send them to the tills by tilladmin shop publish.</translation>
    </message>
    <message>
        <source>已取 %1 行</source>
        <translation>%1 rows fetched</translation>
    </message>
    <message>
        <source>店铺的商品、会员、操作员和参数已取来（%1 行）。</source>
        <translation>The shop&apos;s goods, members, operators and parameters are here (%1 rows).</translation>
    </message>
    <message>
        <source>店铺的商品还没有取全（%1）；打开收银程序后接着取。</source>
        <translation>Not all of the shop&apos;s goods are here yet (%1); the open till goes on fetching them.</translation>
    </message>
    <message>
        <source>这台收银机连着店铺的服务器，商品从办公室来。</source>
        <translation>This till has a shop&apos;s server: goods come from the office.</translation>
    </message>
    <message>
        <source>服务器的端口，一般是 5432</source>
        <translation>The server&apos;s port, usually 5432</translation>
    </message>
    <message>
        <source>服务器上的数据库，一般是 till</source>
        <translation>The database at the server, usually till</translation>
    </message>
    <message>
        <source>读不出这个文件：%1</source>
        <translation>This file can&apos;t be read: %1</translation>
    </message>
    <message>
        <source>服务器上的店铺已建好（%1 步）</source>
        <translation>The shop at the server is ready (%1 steps)</translation>
    </message>
    <message>
        <source>服务器上的店铺已是最新的</source>
        <translation>The shop at the server is up to date</translation>
    </message>
    <message>
        <source>收银机 %1 的加入码，24 小时内用一次：</source>
        <translation>The code for till %1 to join with, once within 24 hours:</translation>
    </message>
    <message>
        <source>已加入</source>
        <translation>joined</translation>
    </message>
    <message>
        <source>等它加入</source>
        <translation>waiting for it to join</translation>
    </message>
    <message>
        <source>加入码过期</source>
        <translation>code expired</translation>
    </message>
    <message>
        <source>已停用</source>
        <translation>shut out</translation>
    </message>
    <message>
        <source>从没联系过</source>
        <translation>never heard of</translation>
    </message>
    <message>
        <source>在线</source>
        <translation>online</translation>
    </message>
    <message>
        <source>%1 分钟没联系</source>
        <translation>not heard of for %1 minutes</translation>
    </message>
    <message>
        <source>时钟快 %1 分钟</source>
        <translation>clock %1 minutes ahead</translation>
    </message>
    <message>
        <source>时钟慢 %1 分钟</source>
        <translation>clock %1 minutes behind</translation>
    </message>
    <message>
        <source>已到 %1 条</source>
        <translation>%1 entries here</translation>
    </message>
    <message>
        <source>未到 %1 单</source>
        <translation>%1 bills to come</translation>
    </message>
    <message>
        <source>读不懂 %1 条</source>
        <translation>%1 entries unreadable</translation>
    </message>
    <message>
        <source>第 %1 段</source>
        <translation>history %1</translation>
    </message>
    <message>
        <source>查过 %1 条记录，%2 张单据</source>
        <translation>%1 entries and %2 bills were checked</translation>
    </message>
    <message>
        <source>收银机 %1 已停用；它传来的账还在。</source>
        <translation>Till %1 is shut out; what it brought stays.</translation>
    </message>
    <message>
        <source>几台收银机的店：在服务器上建店、加收银机、查账</source>
        <translation>A shop of several tills: make it at a server, let tills in, check what they brought</translation>
    </message>
    <message>
        <source>怎样连到服务器，例如 &quot;host=/run/postgresql dbname=till&quot;；不写是本机的数据库 till</source>
        <translation>How to reach the server, for example &quot;host=/run/postgresql dbname=till&quot;; else the database till on this machine</translation>
    </message>
    <message>
        <source>机号</source>
        <translation>till</translation>
    </message>
    <message>
        <source>收银机的号码，从 1 起</source>
        <translation>The till&apos;s number, from 1</translation>
    </message>
    <message>
        <source>店铺自己的证书（PEM 文件），收银机凭它认服务器</source>
        <translation>The shop&apos;s own certificate (a PEM file), by which tills know the server</translation>
    </message>
    <message>
        <source>加一台收银机，给出它的加入码</source>
        <translation>Let a till in: gives the code that it joins with</translation>
    </message>
    <message>
        <source>它已经加入过：换了机器或者重装，原来的那台从此不能再传</source>
        <translation>It joined before: for a new machine; the old one is shut out from then on</translation>
    </message>
    <message>
        <source>列出收银机：状态、最后联系、已到未到、时钟、版本</source>
        <translation>List the tills: state, last contact, what is here and to come, clock, version</translation>
    </message>
    <message>
        <source>核对每台传来的记录和按它们做的账表</source>
        <translation>Check what each till brought, and the tables made from it</translation>
    </message>
    <message>
        <source>按记录重新做账表</source>
        <translation>Make the tables again from the entries</translation>
    </message>
    <message>
        <source>记日志：谁在什么时候做了什么，谁也改不了</source>
        <translation>Keep a journal of who did what, which nobody can rewrite</translation>
    </message>
    <message>
        <source>打折、删行、退货等要有权限，没有的请人授权</source>
        <translation>Ask for a right, or an approval, for discounts, returns etc.</translation>
    </message>
    <message>
        <source>按班收款：开班写备用金，结班清点钱箱</source>
        <translation>Work in shifts: float at the start, count at the end</translation>
    </message>
    <message>
        <source>收银台上可以练习，不记账</source>
        <translation>Practice at the till, which leaves the books alone</translation>
    </message>
    <message>
        <source>没有班次 %1。</source>
        <translation>There is no shift %1.</translation>
    </message>
    <message>
        <source>班次 %1 还没有结班。</source>
        <translation>Shift %1 has not been closed yet.</translation>
    </message>
    <message>
        <source>不列，写出这一班的结班表，和收银台重打的一样</source>
        <translation>instead of the list, write the sheet of this shift, as the till prints it again</translation>
    </message>
    <message>
        <source>停用一台收银机</source>
        <translation>Shut a till out</translation>
    </message>
    <message>
        <source>连着服务器的店，服务器没有回应时储值卡付款：0 不收，1 收到 OfflineCardLimit 为止</source>
        <translation>In a shop with a server, stored-value cards while it does not answer: 0 are refused, 1 pay up to OfflineCardLimit</translation>
    </message>
    <message>
        <source>服务器没有回应时，一张卡在一台收银机上最多收多少元；同一张卡最多可能损失 收银机台数 × 这个数</source>
        <translation>How many yuan one card pays at one till at most while the server does not answer; one card may cost the number of tills × this</translation>
    </message>
    <message>
        <source>撤消储值卡扣款</source>
        <translation>Charge of a card taken back</translation>
    </message>
    <message>
        <source>连不上服务器：%1</source>
        <translation>The server cannot be reached: %1</translation>
    </message>
    <message>
        <source>收银机 %1 的记录少了第 %2 到第 %3 条</source>
        <translation>Till %1 lacks the entries %2 to %3</translation>
    </message>
    <message>
        <source>收银机 %1 的第 %2 条记录与它的校验值不符：它，或者它前面的一条，被改过</source>
        <translation>Entry %2 of till %1 does not match its hash: it, or the one before it, has been changed</translation>
    </message>
    <message>
        <source>服务器没有照办：%1</source>
        <translation>The server did not do it: %1</translation>
    </message>
    <message>
        <source>收银机 %1 已经加入。换机器或者重装要写 --again，原来的那台从此不能再传。</source>
        <translation>Till %1 has joined already. For another machine, or after a new installation, add --again; the old one can bring nothing from then on.</translation>
    </message>
    <message>
        <source>没有收银机 %1。</source>
        <translation>There is no till %1.</translation>
    </message>
    <message>
        <source>收银机 %1 的单据 %2：各行加起来与它不符</source>
        <translation>Bill %2 of till %1: its lines do not add up to it</translation>
    </message>
    <message>
        <source>账表与传来的记录不符，已按记录重新做好</source>
        <translation>The tables did not agree with the entries, and have been made again from them</translation>
    </message>
    <message>
        <source>账表与传来的记录不符，可用 --rebuild 重新做好</source>
        <translation>The tables do not agree with the entries; --rebuild makes them again</translation>
    </message>
    <message>
        <source>这台收银机没有加入店铺的服务器（tilladmin enrol）。</source>
        <translation>This till has not joined a shop with a server (tilladmin enrol).</translation>
    </message>
    <message>
        <source>已连上服务器</source>
        <translation>The server answers</translation>
    </message>
    <message>
        <source>这台机器没有 %1，连不上服务器。</source>
        <translation>This machine has no %1; the server cannot be reached.</translation>
    </message>
    <message>
        <source>服务器给的单据读不出来：%1</source>
        <translation>The server&apos;s bill cannot be read: %1</translation>
    </message>
    <message>
        <source>连着服务器的店，服务器没有回应时，本机已上传的单据退货：0 不退，1 照退（同一件商品可能在两台各退一次）</source>
        <translation>In a shop with a server that does not answer, returns against this till&apos;s uploaded bills: 0 refused, 1 allowed (the same goods may come back at two tills)</translation>
    </message>
    <message>
        <source>连着服务器的店，StockRule 是 1 而服务器没有回应时，库存不够：0 提醒后照卖，1 不卖</source>
        <translation>In a shop with a server that does not answer, with StockRule 1, when stock runs short: 0 warn and sell, 1 refuse</translation>
    </message>
    <message>
        <source>连着服务器的店，收银机多少天没有连上服务器就不能登录，0 不限</source>
        <translation>In a shop with a server, after how many days without it nobody can log in at a till; 0: never</translation>
    </message>
    <message>
        <source>这台收银机已经超过 %1 天没有连上店铺的服务器，不能登录。请先接通网络。</source>
        <translation>This till has not reached the shop&apos;s server for more than %1 days, so nobody can log in. Connect it to the network first.</translation>
    </message>
    <message>
        <source>撤消退货</source>
        <translation>Return given up</translation>
    </message>
    <message>
        <source>别台退货</source>
        <translation>Returned at another till</translation>
    </message>
    <message>
        <source>挂单交给别台</source>
        <translation>Held bill given to another till</translation>
    </message>
    <message>
        <source>接到别台挂单</source>
        <translation>Held bill come from another till</translation>
    </message>
    <message>
        <source>别的收银机已经退过，这一行现在只剩 %1 可退！</source>
        <translation>Another till has taken some of it back: only %1 of this line can still be returned!</translation>
    </message>
    <message>
        <source>服务器上没有这张单据的这一行，不能退货！</source>
        <translation>The server does not have this line of the bill: it cannot be taken back!</translation>
    </message>
    <message>
        <source>没有联网，已上传的单据现在不能退货！</source>
        <translation>The server is away: goods of an uploaded bill cannot be taken back now!</translation>
    </message>
    <message>
        <source>没有联网，不能退别台的单！</source>
        <translation>The server is away: goods of another till&apos;s bill can&apos;t be taken back here!</translation>
    </message>
    <message>
        <source>收银程序的更多功能里有加入店铺，加入有服务器的店：0 否，1 是</source>
        <translation>The till&apos;s further menu has Join shop, to join a shop with a server: 0 no, 1 yes</translation>
    </message>
    <message>
        <source>这台收银机还没有加入店铺，请写上加入码。</source>
        <translation>This till has not joined a shop; please give the code.</translation>
    </message>
    <message>
        <source>服务器的地址改成了 %1。</source>
        <translation>The server&apos;s address is now %1.</translation>
    </message>
    <message>
        <source>服务器的名称或地址，和它的证书上写的一样；有备机的写两个，用逗号隔开</source>
        <translation>The server&apos;s name or address, as its certificate has it; with a standby server give both, with a comma between them</translation>
    </message>
    <message>
        <source>tilladmin shop add-till 给出的；已经加入的不写，只改服务器的地址</source>
        <translation>What tilladmin shop add-till gave; without it, a till that has joined changes the server&apos;s address only</translation>
    </message>
    <message>
        <source>请写明数据文件，或者用 --server 写明服务器，两样写一样。</source>
        <translation>Please name either the data file, or the server with --server.</translation>
    </message>
    <message>
        <source>不看一个数据文件，看服务器上全店的账，例如 &quot;dbname=till&quot;；怎样连和 shop 一样</source>
        <translation>Not one data file but the whole shop&apos;s books at the server, for instance &quot;dbname=till&quot;; connected to as by shop</translation>
    </message>
    <message>
        <source>只看服务器上这台收银机的账</source>
        <translation>Only this till&apos;s books at the server</translation>
    </message>
    <message>
        <source>服务器上的店铺从第 %1 步升级到第 %2 步，账表已按记录重新做好</source>
        <translation>The shop at the server was upgraded from step %1 to step %2, and its rows made anew from the entries</translation>
    </message>
    <message>
        <source>这不是备机：它已经是主服务器。</source>
        <translation>This is no standby: it is the first server already.</translation>
    </message>
    <message>
        <source>主服务器还在运行，还在向这台备机传。要切换，先关掉主服务器。</source>
        <translation>The first server is still running and sending to this standby. Shut it down before you switch.</translation>
    </message>
    <message>
        <source>备机收到的最后一笔：%1</source>
        <translation>Last received by the standby: %1</translation>
    </message>
    <message>
        <source>主服务器没有等这台备机（synchronous_standby_names 没有设），它答应过的账这里可能没有。各台会补传自己的账，服务器上改过的不会回来。仍要切换，加 --may-lose。</source>
        <translation>The first server did not wait for this standby (synchronous_standby_names is not set), so what it acknowledged may be missing here. The tills bring their own books again; what was changed at the server does not come back. To switch all the same, add --may-lose.</translation>
    </message>
    <message>
        <source>原来的主服务器必须关着，以后也不能再当服务器开：两台都收账，账就分开了。确认它关了，再加 --first-is-off。</source>
        <translation>The first server must be off, and must never be started as a server again: with two that take books, the books part. When you are sure that it is off, add --first-is-off.</translation>
    </message>
    <message>
        <source>备机已经是主服务器。各台收银机加入时写过两个地址的，自己会找到它；没有写的，在各台用 tilladmin enrol 加数据文件和新地址。</source>
        <translation>The standby is now the first server. Tills that joined with both addresses find it by themselves; at the others run tilladmin enrol with the data file and the new address.</translation>
    </message>
    <message>
        <source>建店</source>
        <translation>Make the shop</translation>
    </message>
    <message>
        <source>装了新版本的程序以后，把服务器上的店铺升级到这个版本</source>
        <translation>After a new version of the program was installed, bring the shop at the server up to it</translation>
    </message>
    <message>
        <source>主服务器坏了：让这台备机当主服务器（在备机上执行）</source>
        <translation>The first server is broken: make this standby the first server (run there)</translation>
    </message>
    <message>
        <source>确认原来的主服务器关着，以后也不再当服务器</source>
        <translation>The first server is off, and will not be a server again</translation>
    </message>
    <message>
        <source>主服务器没有等这台备机，也要切换</source>
        <translation>Switch although the first server did not wait for this standby</translation>
    </message>
    <message>
        <source>服务器没有接受加入码：打错了、用过了、过期了，或者没有允许这台电脑。%1</source>
        <translation>The server did not accept the code: it is mistyped, used or expired, or this computer is not let in. %1</translation>
    </message>
    <message>
        <source>服务器的证书没有通过：它不是店铺的证书签的，或者上面没有“%1”。加入码已经用掉，改好证书以后再要一个。%2</source>
        <translation>The server&apos;s certificate does not do: it is not signed by the shop&apos;s, or does not name “%1”. The code is used up; ask for another one when the certificate is mended. %2</translation>
    </message>
    <message>
        <source>还有没结完的单据，请先在前台销售里结完或者取消。</source>
        <translation>There are open bills; please settle or cancel them in the sale first.</translation>
    </message>
    <message>
        <source>班次还开着，请先结班。</source>
        <translation>A shift is open; please close it first.</translation>
    </message>
    <message>
        <source>服务器上的店铺是更新版本的程序建立的（%1 步，这个程序有 %2 步）。</source>
        <translation>The shop at the server was made by a newer version of the program (%1 steps, this one has %2).</translation>
    </message>
    <message>
        <source>店铺已经建好，是较早的版本；请用 tilladmin shop upgrade 升级。</source>
        <translation>The shop has been made, by an earlier version; please upgrade it with tilladmin shop upgrade.</translation>
    </message>
    <message>
        <source>服务器上还没有店铺，请先用 tilladmin shop init。</source>
        <translation>There is no shop at the server yet; please run tilladmin shop init first.</translation>
    </message>
    <message>
        <source>备机五分钟内没有成为主服务器。</source>
        <translation>The standby did not become the first server within five minutes.</translation>
    </message>
    <message>
        <source>合并了 %1 行很早的库存和储值卡变动，合计不变</source>
        <translation>Added up %1 rows of old movements of stock and cards; the sums are the same</translation>
    </message>
    <message>
        <source>把很早的库存和储值卡变动合并成合计，查库存更快</source>
        <translation>Add up old movements of stock and cards, so that stock is looked up faster</translation>
    </message>
    <message>
        <source>多少天以前的；不写是 400，不要比各台的备份新</source>
        <translation>From how many days ago back; 400 unless given; no newer than the tills&apos; backups</translation>
    </message>
    <message>
        <source>合计 %1 单，%2 行，数量 %3，金额 %4</source>
        <translation>in all %1 bills, %2 lines, quantity %3, amount %4</translation>
    </message>
    <message>
        <source>列出各台卖出的每一行，最早的在前，最后是合计：机号、单号、时间、操作员、货号、品名、数量、单价、折扣、金额，各用制表符分开；退了的已减去</source>
        <translation>lists each line that the tills sold, the earliest first, and the sums at the end: till, bill, time, operator, item number, name, quantity, price, discount, amount, separated by tabs; what was taken back is taken off</translation>
    </message>
    <message>
        <source>从哪天起；不写从今天起</source>
        <translation>the first day; from today if not given</translation>
    </message>
    <message>
        <source>只列小票上这个单号的一单；不写日期就不论哪天</source>
        <translation>only the bill with this number on its receipt; of any day if none is given</translation>
    </message>
    <message>
        <source>只列这位操作员</source>
        <translation>only this operator</translation>
    </message>
    <message>
        <source>只列货号或品名里有这些字的</source>
        <translation>only what has these characters in its number or name</translation>
    </message>
    <message>
        <source>在总部：只发给这个店，在它那里先于发给各店的算数</source>
        <translation>At head office: for this shop alone, where it counts before what is for all shops</translation>
    </message>
    <message>
        <source>服务器没有再回应。加入码已经用掉，请再要一个。%1</source>
        <translation>The server did not answer again. The code is used up; ask for another one. %1</translation>
    </message>
    <message>
        <source>看主服务器是不是真的停了，最多一分半钟……</source>
        <translation>Looking whether the first server has really stopped, for a minute and a half at most ...</translation>
    </message>
    <message>
        <source>日志要用 Journal=0 停。</source>
        <translation>The journal is ended by Journal=0.</translation>
    </message>
    <message>
        <source>%1 改成没有设置</source>
        <translation>%1 is set no more</translation>
    </message>
    <message>
        <source>%1 个参数不再设置，用默认值</source>
        <translation>%1 parameters are set no more and have their defaults</translation>
    </message>
    <message>
        <source>店铺参数：列出、设置、取消设置</source>
        <translation>Shop parameters: list, set, unset</translation>
    </message>
    <message>
        <source>取消参数的设置，用默认值（全部成功才算数）</source>
        <translation>Unset parameters, so that they have their defaults (all of them or none)</translation>
    </message>
    <message>
        <source>参数名</source>
        <translation>name</translation>
    </message>
    <message>
        <source>别台挂单读不出来</source>
        <translation>Held bill of another till unreadable</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>%1&#x3000;已完成 %2</source>
        <translation>%1&#x3000;%2 done</translation>
    </message>
</context>
<context>
    <name>XlsxExport</name>
    <message>
        <source>表格文件最多 %1 行，请改存为 .csv 文件。</source>
        <translation>A workbook holds %1 lines at most. Please save it as a .csv file.</translation>
    </message>
    <message>
        <source>内存不足。</source>
        <translation>Out of memory.</translation>
    </message>
    <message>
        <source>表格组件出错（%1）。</source>
        <translation>The workbook could not be made (%1).</translation>
    </message>
</context>
<context>
    <name>cardStored</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>会员充值</source>
        <translation>Top up a card</translation>
    </message>
    <message>
        <source>会 员 充 值</source>
        <translation>Top up a card</translation>
    </message>
    <message>
        <source>卡号</source>
        <translation>Card no.</translation>
    </message>
    <message>
        <source>会员姓名</source>
        <translation>Member&apos;s name</translation>
    </message>
    <message>
        <source>折扣类别</source>
        <translation>Discount class</translation>
    </message>
    <message>
        <source>充值前余额</source>
        <translation>Balance before</translation>
    </message>
    <message>
        <source>付款金额</source>
        <translation>Paid</translation>
    </message>
    <message>
        <source>充值金额</source>
        <translation>Credited</translation>
    </message>
    <message>
        <source>充值后余额</source>
        <translation>Balance after</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remarks</translation>
    </message>
</context>
<context>
    <name>dlgApproval</name>
    <message>
        <source>授权</source>
        <translation>Approve</translation>
    </message>
    <message>
        <source>放弃</source>
        <translation>Give up</translation>
    </message>
    <message>
        <source>用户编号或刷卡：</source>
        <translation>User number or staff card:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>%1最多只能到 %2。请有权限的人授权，%3 放弃。</source>
        <translation>%1: up to %2 only. Somebody with the right may approve; %3 gives up.</translation>
    </message>
    <message>
        <source>%1没有这个权限。请有权限的人授权，%2 放弃。</source>
        <translation>%1 has no right to do this. Somebody with the right may approve; %2 gives up.</translation>
    </message>
    <message>
        <source>%1也不能授权：%2。</source>
        <translation>%1 can&apos;t approve either: %2.</translation>
    </message>
</context>
<context>
    <name>dlgCash</name>
    <message>
        <source>开班</source>
        <translation>Open shift</translation>
    </message>
    <message>
        <source>存入现金</source>
        <translation>Cash in</translation>
    </message>
    <message>
        <source>取出现金</source>
        <translation>Cash out</translation>
    </message>
    <message>
        <source>备用金（元）：</source>
        <translation>Float (yuan):</translation>
    </message>
    <message>
        <source>金额（元）：</source>
        <translation>Amount (yuan):</translation>
    </message>
    <message>
        <source>原因：</source>
        <translation>Reason:</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>数一数钱箱里的备用金，没有就写 0。</source>
        <translation>Count the float in the drawer; enter 0 if there is none.</translation>
    </message>
    <message>
        <source>请输入金额，到分为止。</source>
        <translation>Please enter an amount, in fen at most.</translation>
    </message>
    <message>
        <source>请写明原因。</source>
        <translation>Please give the reason.</translation>
    </message>
</context>
<context>
    <name>dlgCashCount</name>
    <message>
        <source>清点钱箱</source>
        <translation>Count the drawer</translation>
    </message>
    <message>
        <source>清点完了</source>
        <translation>Counted</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>%1 元 ×</source>
        <comment>worth of a note or coin, before the field of its pieces</comment>
        <translation>%1 yuan ×</translation>
    </message>
    <message>
        <source>钱箱里各有几张、几枚？（含备用金）</source>
        <translation>How many of each are in the drawer, the float included?</translation>
    </message>
    <message>
        <source>合计：%1 元</source>
        <translation>Sum: %1 yuan</translation>
    </message>
    <message>
        <source>合计：有不是整数的张数</source>
        <translation>Sum: not every count is a whole number</translation>
    </message>
</context>
<context>
    <name>dlgGoodsPreview</name>
    <message>
        <source>导入(&amp;S)</source>
        <translation>Import (&amp;S)</translation>
    </message>
    <message>
        <source>取消(&amp;C)</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>导入商品</source>
        <translation>Import goods</translation>
    </message>
    <message>
        <source>正在停止；已经开始写入的话，会写完。</source>
        <translation>Stopping; what is being written is finished first.</translation>
    </message>
    <message>
        <source>正在读取……</source>
        <translation>Reading…</translation>
    </message>
    <message>
        <source>%1。请先改正不能导入的行，现在什么也不会写入。</source>
        <translation>%1. Please correct the refused lines first; nothing is written now.</translation>
    </message>
    <message>
        <source>表里的 %1 种商品和店里的一样，没有要导入的。</source>
        <translation>The %1 goods of the sheet are as in the shop. There is nothing to import.</translation>
    </message>
    <message>
        <source>%1。按回车键导入。</source>
        <translation>%1. Press Enter to import.</translation>
    </message>
    <message>
        <source>正在导入……</source>
        <translation>Importing…</translation>
    </message>
    <message>
        <source>%1。什么也没有写入。</source>
        <translation>%1. Nothing was written.</translation>
    </message>
    <message>
        <source>用这张表(&amp;S)</source>
        <translation>Use this sheet (&amp;S)</translation>
    </message>
    <message>
        <source>%1。按回车键选定，开店时导入。</source>
        <translation>%1. Press Enter to choose it; it is imported when the shop is made.</translation>
    </message>
</context>
<context>
    <name>dlgMaking</name>
    <message>
        <source>开店</source>
        <translation>Set up the shop</translation>
    </message>
    <message>
        <source>停止(&amp;C)</source>
        <translation>Stop (&amp;C)</translation>
    </message>
    <message>
        <source>正在建立店铺……</source>
        <translation>Making the shop…</translation>
    </message>
    <message>
        <source>正在停止，什么也不会留下……</source>
        <translation>Stopping, nothing will be left behind…</translation>
    </message>
</context>
<context>
    <name>dlgShiftSheet</name>
    <message>
        <source>第 %1 班</source>
        <translation>Shift %1</translation>
    </message>
    <message>
        <source>结班</source>
        <translation>Close shift</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>重新清点</source>
        <translation>Count again</translation>
    </message>
    <message>
        <source>先不结班</source>
        <translation>Not yet</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>%1 笔</source>
        <comment>how many, before what they came to</comment>
        <translation>%1 ×</translation>
    </message>
    <message>
        <source>单据</source>
        <translation>Bills</translation>
    </message>
    <message>
        <source>充值收现金</source>
        <translation>Top-ups in cash</translation>
    </message>
    <message>
        <source>退货退现金</source>
        <translation>Refunds in cash</translation>
    </message>
    <message>
        <source>存入现金</source>
        <translation>Cash in</translation>
    </message>
    <message>
        <source>取出现金</source>
        <translation>Cash out</translation>
    </message>
    <message>
        <source>备用金</source>
        <translation>Float</translation>
    </message>
    <message>
        <source>钱箱应有</source>
        <translation>Should be there</translation>
    </message>
    <message>
        <source>清点</source>
        <translation>Counted</translation>
    </message>
    <message>
        <source>第 %1 次</source>
        <translation>count %1</translation>
    </message>
    <message>
        <source>相符</source>
        <translation>It agrees</translation>
    </message>
    <message>
        <source>长款</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>短款</source>
        <translation>Short</translation>
    </message>
    <message>
        <source>%1 次</source>
        <comment>how often something was done</comment>
        <translation>%1 times</translation>
    </message>
    <message>
        <source>不收款开钱箱</source>
        <translation>Drawer opened without a sale</translation>
    </message>
    <message>
        <source>撤消单据</source>
        <translation>Cancelled bills</translation>
    </message>
    <message>
        <source>删除商品行</source>
        <translation>Deleted lines</translation>
    </message>
    <message>
        <source>%1 行</source>
        <comment>of bills</comment>
        <translation>%1 lines</translation>
    </message>
    <message>
        <source>授权</source>
        <translation>Approvals</translation>
    </message>
</context>
<context>
    <name>frmColor</name>
    <message>
        <source>窗口背景色：</source>
        <translation>Window background:</translation>
    </message>
    <message>
        <source>状态行背景色：</source>
        <translation>Status line background:</translation>
    </message>
    <message>
        <source>状态行销售信息颜色：</source>
        <translation>Status line, sale:</translation>
    </message>
    <message>
        <source>状态行会员信息颜色：</source>
        <translation>Status line, member:</translation>
    </message>
    <message>
        <source>首行大标题颜色：</source>
        <translation>Title line:</translation>
    </message>
    <message>
        <source>次行信息颜色：</source>
        <translation>Second line:</translation>
    </message>
    <message>
        <source>颜色设置</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>设为空，则可恢复为默认设置</source>
        <translation>Leave a field empty for the default</translation>
    </message>
    <message>
        <source>确定(&amp;O)</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>取消(&amp;E)</source>
        <translation>Canc&amp;el</translation>
    </message>
    <message>
        <source>选择…</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>“%1”不是颜色的数字！</source>
        <translation>&quot;%1&quot; is not the number of a colour.</translation>
    </message>
</context>
<context>
    <name>frmCount</name>
    <message>
        <source>销售统计</source>
        <translation>Day&apos;s statistics</translation>
    </message>
    <message>
        <source>今日销售统计</source>
        <translation>Today&apos;s sales</translation>
    </message>
    <message>
        <source>打印交班表</source>
        <translation>Print hand-over sheet</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>%1今日销售统计表</source>
        <translation>%1, sales of today</translation>
    </message>
    <message>
        <source>，其中%1 [%2] 元</source>
        <comment>part of the day&apos;s sum, behind it</comment>
        <translation>, of which %1 [%2] yuan</translation>
    </message>
    <message>
        <source>今日累计发生 [%1] 笔交易，共交易 [%2] 件商品，交易额 [%3] 元%4</source>
        <translation>Today: [%1] bills, [%2] pieces, takings [%3] yuan%4</translation>
    </message>
</context>
<context>
    <name>frmEditPwd</name>
    <message>
        <source>修改密码</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>确定(&amp;Y)</source>
        <translation>OK (&amp;Y)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>密 码 修 改</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>用户编号：</source>
        <translation>User number:</translation>
    </message>
    <message>
        <source>旧密码：</source>
        <translation>Old password:</translation>
    </message>
    <message>
        <source>新密码：</source>
        <translation>New password:</translation>
    </message>
</context>
<context>
    <name>frmEndSell</name>
    <message>
        <source>0000.00</source>
        <translation>0000.00</translation>
    </message>
    <message>
        <source>0.00</source>
        <translation>0.00</translation>
    </message>
    <message>
        <source>收银结算</source>
        <translation>Settlement</translation>
    </message>
    <message>
        <source>为0表示实收金额与应收金额相同</source>
        <translation>0 means: received exactly the amount due</translation>
    </message>
    <message>
        <source>应收</source>
        <translation>Due</translation>
    </message>
    <message>
        <source>元</source>
        <translation>yuan</translation>
    </message>
    <message>
        <source>找零</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>业务员</source>
        <translation>Salesman</translation>
    </message>
    <message>
        <source>卡号</source>
        <translation>Card no.</translation>
    </message>
    <message>
        <source>密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>现金栏：%1 收款，%2 返回单据；Tab 转到优惠、业务员、银行卡、扫码、储值卡</source>
        <translation>Cash field: %1 takes the payment, %2 returns to the bill; Tab goes on to discount, salesman, bank card, phone, stored-value card</translation>
    </message>
    <message>
        <source>现金栏：%1 收款，%2 返回单据；Tab 转到优惠、业务员、银行卡、储值卡</source>
        <translation>Cash field: %1 takes the payment, %2 returns to the bill; Tab goes on to discount, salesman, bank card, stored-value card</translation>
    </message>
</context>
<context>
    <name>frmFMember</name>
    <message>
        <source>会员编号输完请按回车</source>
        <translation>Press Enter behind the member number</translation>
    </message>
    <message>
        <source>男</source>
        <translation>Male</translation>
    </message>
    <message>
        <source>女</source>
        <translation>Female</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>会员资料</source>
        <translation>Member</translation>
    </message>
    <message>
        <source>会 员 资 料</source>
        <translation>Member</translation>
    </message>
    <message>
        <source>会员编号：</source>
        <translation>Member number:</translation>
    </message>
    <message>
        <source>姓名：</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>年龄：</source>
        <translation>Age:</translation>
    </message>
    <message>
        <source>性别：</source>
        <translation>Sex:</translation>
    </message>
    <message>
        <source>联系地址：</source>
        <translation>Address:</translation>
    </message>
    <message>
        <source>积分：</source>
        <translation>Points:</translation>
    </message>
    <message>
        <source>电话：</source>
        <translation>Telephone:</translation>
    </message>
    <message>
        <source>备注：</source>
        <translation>Remarks:</translation>
    </message>
    <message>
        <source>会员卡类别</source>
        <translation>Card class</translation>
    </message>
    <message>
        <source>会员生日:</source>
        <translation>Birthday:</translation>
    </message>
    <message>
        <source>储值卡余额</source>
        <translation>Stored-value balance</translation>
    </message>
    <message>
        <source>储值卡密码</source>
        <translation>Stored-value password</translation>
    </message>
    <message>
        <source>贵宾卡</source>
        <translation>VIP card</translation>
    </message>
    <message>
        <source>银卡</source>
        <translation>Silver card</translation>
    </message>
    <message>
        <source>金卡</source>
        <translation>Gold card</translation>
    </message>
    <message>
        <source>卡状态：%1<byte value="xd"/>
累计消费：%2<byte value="xd"/>
加入时间：%3</source>
        <translation>Card: %1<byte value="xd"/>
Spent so far: %2<byte value="xd"/>
Member since: %3</translation>
    </message>
    <message>
        <source>可用</source>
        <translation>active</translation>
    </message>
    <message>
        <source>禁用</source>
        <translation>disabled</translation>
    </message>
    <message>
        <source>请输入会员姓名</source>
        <translation>Please enter the member&apos;s name</translation>
    </message>
    <message>
        <source>出错</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>会员增加成功!</source>
        <translation>The member was added.</translation>
    </message>
    <message>
        <source>年龄“%1”不是有效的整数！</source>
        <translation>The age &quot;%1&quot; is not a valid whole number.</translation>
    </message>
    <message>
        <source>积分“%1”不是有效的整数！</source>
        <translation>The points &quot;%1&quot; are not a valid whole number.</translation>
    </message>
    <message>
        <source>储值卡余额“%1”不是有效的金额！</source>
        <translation>The stored-value balance &quot;%1&quot; is not a valid amount.</translation>
    </message>
</context>
<context>
    <name>frmGoodsIn</name>
    <message>
        <source>预览(&amp;S)</source>
        <translation>Preview (&amp;S)</translation>
    </message>
    <message>
        <source>取消(&amp;C)</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>表格文件（.xlsx 或 .csv），第一行是列名。按回车键打开。</source>
        <translation>A sheet (.xlsx or .csv) with its headings in the first line. Press Enter to open it.</translation>
    </message>
    <message>
        <source>导入商品</source>
        <translation>Import goods</translation>
    </message>
    <message>
        <source>表里的列</source>
        <translation>Column in the sheet</translation>
    </message>
    <message>
        <source>是什么</source>
        <translation>What it is</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>记住为：</source>
        <translation>Remember as:</translation>
    </message>
    <message>
        <source>（不读）</source>
        <translation>(not read)</translation>
    </message>
    <message>
        <source>请看看每一列猜得对不对，不对的按回车键改；都对了选“预览”。</source>
        <translation>Please see whether each column was guessed right and press Enter on those that were not; then choose &quot;Preview&quot;.</translation>
    </message>
    <message>
        <source>这一列是什么</source>
        <translation>What is this column</translation>
    </message>
    <message>
        <source>已导入商品：新增 %1 行，改动 %2 行。</source>
        <translation>Goods imported: %1 new, %2 changed.</translation>
    </message>
</context>
<context>
    <name>frmHelp</name>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>返回(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>现在的按键</source>
        <translation>The keys as they are now</translation>
    </message>
</context>
<context>
    <name>frmInput</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>没有定价</source>
        <translation>No price</translation>
    </message>
    <message>
        <source>请输入价格(元)：</source>
        <translation>Please enter the price (yuan):</translation>
    </message>
</context>
<context>
    <name>frmJoin</name>
    <message>
        <source>请在服务器上用 tilladmin shop add-till 要加入码。</source>
        <translation>At the server, tilladmin shop add-till gives the code.</translation>
    </message>
    <message>
        <source>已经加入，机号 %1，服务器 %2。</source>
        <translation>Joined as till %1, server %2.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>加入店铺</source>
        <translation>Join shop</translation>
    </message>
    <message>
        <source>名称或地址，和证书上一样</source>
        <translation>Name or address, as in its certificate</translation>
    </message>
    <message>
        <source>加 入 店 铺</source>
        <translation>Join shop</translation>
    </message>
    <message>
        <source>服务器：</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>加入码：</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>正在加入……</source>
        <translation>Joining …</translation>
    </message>
    <message>
        <source>加入(&amp;J)</source>
        <translation>&amp;Join</translation>
    </message>
</context>
<context>
    <name>frmJournal</name>
    <message>
        <source>查询(&amp;S)</source>
        <translation>&amp;Search</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>日志</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>全部种类</source>
        <translation>All kinds</translation>
    </message>
    <message>
        <source>全部操作员</source>
        <translation>All operators</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>日期：</source>
        <translation>Dates:</translation>
    </message>
    <message>
        <source>到</source>
        <translation>to</translation>
    </message>
    <message>
        <source>已找到 %L1 条，按 %2 停止</source>
        <translation>%L1 entries found, %2 stops it</translation>
    </message>
    <message>
        <source>共 %L1 条</source>
        <translation>%L1 entries in all</translation>
    </message>
    <message>
        <source>只列出前 %L1 条，后面的没有再看</source>
        <translation>Only the first %L1 entries; the others were not looked at</translation>
    </message>
</context>
<context>
    <name>frmKeyset</name>
    <message>
        <source>键盘设置</source>
        <translation>Keyboard settings</translation>
    </message>
    <message>
        <source>定义前台销售的各功能按钮：按住[Tab]键或[Alt]+[&quot;各功能名称右侧带下划线字母(数字)&quot;]选择各功能右边方框，按键盘上希望定义的该功能的键。[确定]按钮保存设定，[取消]不保存设定。</source>
        <translation>Keys of the sale screen&apos;s functions: choose a box with [Tab] or [Alt]+[the underlined letter or digit of its name] and press the key it shall have. [OK] saves the keys, [Cancel] leaves them.</translation>
    </message>
    <message>
        <source>商品快捷键定义</source>
        <translation>Quick keys for goods</translation>
    </message>
    <message>
        <source>增加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>快捷键键值：</source>
        <translation>Quick key&apos;s code:</translation>
    </message>
    <message>
        <source>对应商品编码：</source>
        <translation>Goods code:</translation>
    </message>
    <message>
        <source>不能为上方功能按键设定快捷功能</source>
        <translation>A function key above can&apos;t be a quick key as well</translation>
    </message>
    <message>
        <source>确定(&amp;O)</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>取消(&amp;E)</source>
        <translation>Canc&amp;el</translation>
    </message>
    <message>
        <source>该健已有快捷设置！</source>
        <translation>This key is a quick key already.</translation>
    </message>
    <message>
        <source>注意</source>
        <translation>Please note</translation>
    </message>
</context>
<context>
    <name>frmLogin</name>
    <message>
        <source>登录</source>
        <translation>Log in</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>收银员登录</source>
        <translation>Cashier login</translation>
    </message>
    <message>
        <source>用户编号：</source>
        <translation>User number:</translation>
    </message>
    <message>
        <source>密码：</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>没有权限！</source>
        <translation>You have no right to do this.</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>使用光标键选择菜单,回车键执行,Esc键返回,Tab键移动选择焦点</source>
        <translation>Choose with the arrow keys, Enter to go, Esc to go back, Tab to move on</translation>
    </message>
    <message>
        <source>更多功能</source>
        <translation>Further functions</translation>
    </message>
    <message>
        <source>前 台 销 售</source>
        <translation>Sale</translation>
    </message>
    <message>
        <source>销 售 统 计</source>
        <translation>Day&apos;s statistics</translation>
    </message>
    <message>
        <source>收 银 设 置</source>
        <translation>Device settings</translation>
    </message>
    <message>
        <source>修 改 密 码</source>
        <translation>Change password</translation>
    </message>
    <message>
        <source>退 出 系 统</source>
        <translation>End the program</translation>
    </message>
    <message>
        <source>销 售 查 询</source>
        <translation>Sales query</translation>
    </message>
    <message>
        <source>经 营 报 表</source>
        <translation>Owner&apos;s report</translation>
    </message>
    <message>
        <source>退    货</source>
        <translation>Goods return</translation>
    </message>
    <message>
        <source>增 加 会 员</source>
        <translation>Add a member</translation>
    </message>
    <message>
        <source>导 入 商 品</source>
        <translation>Import goods</translation>
    </message>
    <message>
        <source>键 盘 设 置</source>
        <translation>Keyboard settings</translation>
    </message>
    <message>
        <source>更 换 操 作 员</source>
        <translation>Change operator</translation>
    </message>
    <message>
        <source>帮    助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>尚未登录</source>
        <translation>Not logged in</translation>
    </message>
    <message>
        <source>操作员：%1</source>
        <translation>Operator: %1</translation>
    </message>
    <message>
        <source>菜单键 / 右键：更多功能（或 F10）&#x3000;%1</source>
        <translation>Menu key / right click: further functions (or F10)&#x3000;%1</translation>
    </message>
    <message>
        <source>操作员注销已完成。</source>
        <translation>The operator has been logged out.</translation>
    </message>
    <message>
        <source>操作员注销没有完成：%1</source>
        <translation>The operator was not logged out: %1</translation>
    </message>
    <message>
        <source>数据备份已完成。</source>
        <translation>The data has been backed up.</translation>
    </message>
    <message>
        <source>数据备份没有完成：%1</source>
        <translation>The data was not backed up: %1</translation>
    </message>
    <message>
        <source>当天的备份已完成。</source>
        <translation>Today&apos;s backup has been made.</translation>
    </message>
    <message>
        <source>当天的备份没有完成：%1</source>
        <translation>Today&apos;s backup was not made: %1</translation>
    </message>
    <message>
        <source>yyyy年M月d日  dddd</source>
        <comment>date format</comment>
        <translation>dddd, d MMMM yyyy</translation>
    </message>
    <message>
        <source>版本 %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>日    志</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>练    习</source>
        <translation>Practice</translation>
    </message>
    <message>
        <source>班    次</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>加 入 店 铺</source>
        <translation>Join shop</translation>
    </message>
</context>
<context>
    <name>frmMenu</name>
    <message>
        <source>无菜单项</source>
        <translation>The menu is empty</translation>
    </message>
</context>
<context>
    <name>frmMsg</name>
    <message>
        <source>信息提示</source>
        <translation>Message</translation>
    </message>
</context>
<context>
    <name>frmPosSet</name>
    <message>
        <source>收银设置</source>
        <translation>Device settings</translation>
    </message>
    <message>
        <source>POS机 设 置</source>
        <translation>Device settings</translation>
    </message>
    <message>
        <source>* 按向上下光标键行行选择</source>
        <translation>* Up and Down go from row to row</translation>
    </message>
    <message>
        <source>测试(&amp;T)</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>确定(&amp;O)</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>取消(&amp;E)</source>
        <translation>Canc&amp;el</translation>
    </message>
</context>
<context>
    <name>frmRecord</name>
    <message>
        <source>单号</source>
        <translation>Bill</translation>
    </message>
    <message>
        <source>金额</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>编号</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>品名</source>
        <translation>Goods</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>单价</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>数量</source>
        <translation>Qty</translation>
    </message>
    <message>
        <source>折扣</source>
        <translation>Disc.</translation>
    </message>
    <message>
        <source>调入挂单</source>
        <translation>Recall a held bill</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>挂起的单子：(回车键选择载入)</source>
        <translation>Held bills: (Enter recalls one)</translation>
    </message>
    <message>
        <source>所选单子商品(Tab键切换过来)：</source>
        <translation>Goods of the bill (Tab goes there):</translation>
    </message>
    <message>
        <source>%1 号</source>
        <translation>Till %1</translation>
    </message>
    <message>
        <source>收银机</source>
        <translation>Till</translation>
    </message>
</context>
<context>
    <name>frmReport</name>
    <message>
        <source>网页，带图表 (.html)</source>
        <translation>Page with charts (.html)</translation>
    </message>
    <message>
        <source>Excel 表格 (.xlsx)</source>
        <translation>Excel workbook (.xlsx)</translation>
    </message>
    <message>
        <source>CSV 文件 (.csv)</source>
        <translation>CSV file (.csv)</translation>
    </message>
    <message>
        <source>文本 (.txt)</source>
        <translation>Text (.txt)</translation>
    </message>
    <message>
        <source>生成(&amp;S)</source>
        <translation>Create (&amp;S)</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>经营报表</source>
        <translation>Owner&apos;s report</translation>
    </message>
    <message>
        <source>写到文件夹：%1</source>
        <translation>Into the folder: %1</translation>
    </message>
    <message>
        <source>到</source>
        <translation>to</translation>
    </message>
    <message>
        <source>日期：</source>
        <translation>Dates:</translation>
    </message>
    <message>
        <source>类型：</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>起止日期不对！</source>
        <translation>The dates are the wrong way round.</translation>
    </message>
    <message>
        <source>注意</source>
        <translation>Please note</translation>
    </message>
    <message>
        <source>文件已经存在，要覆盖吗？
%1</source>
        <translation>The file is there already. Replace it?
%1</translation>
    </message>
    <message>
        <source>已写到 %1</source>
        <translation>Written to %1</translation>
    </message>
    <message>
        <source>已停止，没有写文件</source>
        <translation>Stopped, no file was written</translation>
    </message>
    <message>
        <source>正在统计…按 %1 停止</source>
        <translation>Adding up… %1 stops it</translation>
    </message>
    <message>
        <source>退出键</source>
        <translation>the Cancel key</translation>
    </message>
</context>
<context>
    <name>frmSearch</name>
    <message>
        <source>商品查询</source>
        <translation>Sales query</translation>
    </message>
    <message>
        <source>%1：查询&#x3000;%2：退出</source>
        <translation>%1: query&#x3000;%2: leave</translation>
    </message>
    <message>
        <source>起止时间不对！</source>
        <translation>The times are the wrong way round.</translation>
    </message>
    <message>
        <source>注意</source>
        <translation>Please note</translation>
    </message>
    <message>
        <source>单号应为数字！</source>
        <translation>A bill number is a number.</translation>
    </message>
    <message>
        <source>正在查询…按 %1 停止</source>
        <translation>Searching… %1 stops it</translation>
    </message>
    <message>
        <source>已找到 %L1 行，按 %2 停止</source>
        <translation>%L1 lines found, %2 stops it</translation>
    </message>
    <message>
        <source>其中%1 [%2] 元。</source>
        <comment>part of all lines&apos; sum, behind their number</comment>
        <translation> of which %1 [%2] yuan.</translation>
    </message>
    <message>
        <source>共 %L1 行。在列表中按空格键排序。%2</source>
        <translation>%L1 lines. The space bar sorts the list. %2</translation>
    </message>
    <message>
        <source>查询已停止</source>
        <translation>The query was stopped</translation>
    </message>
    <message>
        <source>没有可打印的内容！</source>
        <translation>There is nothing to print.</translation>
    </message>
    <message>
        <source>还没有可以补打的单据！</source>
        <translation>There is no bill to reprint yet.</translation>
    </message>
    <message>
        <source>没有可导出的内容！</source>
        <translation>There is nothing to export.</translation>
    </message>
    <message>
        <source>正在导出…按 %1 停止</source>
        <translation>Exporting… %1 stops it</translation>
    </message>
    <message>
        <source>已导出 %1</source>
        <translation>Exported %1</translation>
    </message>
    <message>
        <source>导出已停止</source>
        <translation>The export was stopped</translation>
    </message>
</context>
<context>
    <name>frmSell</name>
    <message>
        <source>收  银  台</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>单号：收银员：</source>
        <translation>Bill: Cashier:</translation>
    </message>
    <message>
        <source>当前时间：%1</source>
        <translation>Now: %1</translation>
    </message>
    <message>
        <source>练习，不入账</source>
        <translation>Practice, not in the books</translation>
    </message>
    <message>
        <source>%1&#x3000;%2</source>
        <comment>time, state of the line</comment>
        <translation>%1&#x3000;%2</translation>
    </message>
</context>
<context>
    <name>frmSetup</name>
    <message>
        <source>开店</source>
        <translation>Set up the shop</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>退出(&amp;E)</source>
        <translation>L&amp;eave</translation>
    </message>
    <message>
        <source>Enter 往下走，上下键选择，PageDown 下一步，PageUp 上一步，Esc 退出</source>
        <translation>Enter goes on, Up and Down choose, PageDown next page, PageUp previous page, Esc leaves</translation>
    </message>
    <message>
        <source>第 %1 步：%2</source>
        <translation>Page %1: %2</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>店铺没有建立：%1</source>
        <translation>The shop was not made: %1</translation>
    </message>
    <message>
        <source>退出的话，什么也没有建立。要退出吗？</source>
        <translation>Nothing is made if you leave now. Leave?</translation>
    </message>
</context>
<context>
    <name>frmShift</name>
    <message>
        <source>开班</source>
        <translation>Open shift</translation>
    </message>
    <message>
        <source>存入现金</source>
        <translation>Cash in</translation>
    </message>
    <message>
        <source>取出现金</source>
        <translation>Cash out</translation>
    </message>
    <message>
        <source>读数</source>
        <translation>Reading</translation>
    </message>
    <message>
        <source>清点和结班</source>
        <translation>Count and close</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>班次</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>结过的班（回车看班次表、重打）</source>
        <translation>Closed shifts (Enter shows the sheet, to print it again)</translation>
    </message>
    <message>
        <source>第 %1 班，%2 由%3开班，备用金 %4 元。</source>
        <translation>Shift %1, opened %2 by %3 with a float of %4 yuan.</translation>
    </message>
    <message>
        <source>还没有开班。</source>
        <translation>No shift is open.</translation>
    </message>
    <message>
        <source>开班人</source>
        <translation>Opened by</translation>
    </message>
    <message>
        <source>结班</source>
        <translation>Closed</translation>
    </message>
    <message>
        <source>结班人</source>
        <translation>Closed by</translation>
    </message>
    <message>
        <source>开班</source>
        <comment>when it was opened</comment>
        <translation>Opened</translation>
    </message>
</context>
<context>
    <name>frmUnSell</name>
    <message>
        <source>退货</source>
        <translation>Goods return</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Leave</translation>
    </message>
    <message>
        <source>条码或货号</source>
        <translation>Barcode/item no.</translation>
    </message>
    <message>
        <source>退     货</source>
        <translation>Goods return</translation>
    </message>
    <message>
        <source>流水号：</source>
        <translation>Bill number:</translation>
    </message>
    <message>
        <source>要退商品编号：</source>
        <translation>Goods to return:</translation>
    </message>
    <message>
        <source>商品单价：</source>
        <translation>Price:</translation>
    </message>
    <message>
        <source>商品数量：</source>
        <translation>Qty sold:</translation>
    </message>
    <message>
        <source>实退数量：</source>
        <translation>Qty returned:</translation>
    </message>
    <message>
        <source>实退金额：</source>
        <translation>Refund:</translation>
    </message>
    <message>
        <source>单号：     商品数量：    金额：      销售时间：     收银员：</source>
        <translation>Bill:     Qty:    Amount:      Time:     Cashier:</translation>
    </message>
    <message>
        <source>请输入要退货的单据流水号！</source>
        <translation>Please enter the number of the bill.</translation>
    </message>
    <message>
        <source>请输入正确的实退金额！</source>
        <translation>Please enter a valid refund.</translation>
    </message>
</context>
<context>
    <name>posMod</name>
    <message>
        <source>还没有能收银的操作员。请店主增加一位：
tilladmin operator add %1 --number 1 --name 姓名 --right sell</source>
        <translation>No operator may sell yet. Ask the owner to add one:
tilladmin operator add %1 --number 1 --name NAME --right sell</translation>
    </message>
    <message>
        <source>下列文件别人也能读写，本程序无权更改，请让管理员收回权限：
%1</source>
        <translation>Others can read and write these files, and this program may not change that. Ask the administrator to take the permission away:
%1</translation>
    </message>
    <message>
        <source>%1
已经开过店的，它可能在没有接上的磁盘上，请接上再打开。
还没有开店的，接下来就可以开店。</source>
        <translation>%1
If the shop has been set up, the file may be on a disk that is not connected; connect it and start again.
If there is no shop yet, it can be set up now.</translation>
    </message>
</context>
</TS>

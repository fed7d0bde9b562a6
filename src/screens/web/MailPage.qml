import QtQuick
import QtWebEngine
import Orl.Web

// A mail's page, transparent over what lies behind it. What a page may ask a browser for, it is refused.
Item {
    id: root
    property string page
    property bool withheld: false
    property real textScale: 1
    readonly property string destination: web.destination !== "" ? web.destination : hovered
    readonly property alias loading: view.loading
    readonly property url url: view.url
    readonly property bool onMail: String(view.url) === String(web.address)
    // The page that was given has been loaded, or given up.
    property bool ready: false
    property string hovered

    onPageChanged: show()
    onWithheldChanged: show()
    onTextScaleChanged: view.zoomFactor = textScale
    Component.onCompleted: show()

    // A page with a ground of its own leaves it to the next one, unless the colour is set anew.
    function clear() {
        view.backgroundColor = Qt.rgba(0, 0, 0, 1 / 255);
        view.backgroundColor = "transparent";
    }

    function show() {
        hovered = "";
        ready = false;
        web.withheld = withheld;
        web.page = page;
        view.url = web.address;
    }

    MailWeb { id: web }

    WebEngineView {
        id: view
        objectName: "mailView"
        anchors.fill: parent
        profile: web.profile
        backgroundColor: "transparent"
        settings {
            // A cleaned mail has no scripts; a page that was gone to may have its own.
            javascriptEnabled: !root.withheld || web.destination !== "" || !root.onMail
            javascriptCanOpenWindows: false
            javascriptCanAccessClipboard: false
            javascriptCanPaste: false
            localContentCanAccessFileUrls: false
            localContentCanAccessRemoteUrls: false
            allowRunningInsecureContent: false
            allowGeolocationOnInsecureOrigins: false
            autoLoadIconsForPage: false
            touchIconsEnabled: false
            dnsPrefetchEnabled: false
            hyperlinkAuditingEnabled: false
            pluginsEnabled: false
            pdfViewerEnabled: false
            fullScreenSupportEnabled: false
            showScrollBars: false
            screenCaptureEnabled: false
            webRTCPublicInterfacesOnly: true
            playbackRequiresUserGesture: true
            focusOnNavigationEnabled: false
            navigateOnDropEnabled: false
        }

        onNavigationRequested: request => {
            if (web.allows(request.url, request.navigationType, request.isMainFrame)) request.accept();
            else request.reject();
        }
        // No window is opened; a tap that wanted one is followed here.
        onNewWindowRequested: request => {
            if (request.userInitiated && web.allows(request.requestedUrl, WebEngineView.LinkClickedNavigation, true))
                view.url = request.requestedUrl;
        }
        // The engine keeps the size with the page's host, and each mail has one of its own.
        onUrlChanged: zoomFactor = root.textScale
        onLoadingChanged: info => {
            if (info.status === WebEngineView.LoadStartedStatus) return root.clear();
            if (String(info.url) === String(web.address)) root.ready = true;
            web.loadEnded();
        }
        onLinkHovered: url => root.hovered = String(url) === "" ? "" : web.shown(url)

        onFeaturePermissionRequested: (origin, feature) => view.grantFeaturePermission(origin, feature, false)
        onCertificateError: error => error.rejectCertificate()
        onSelectClientCertificate: selection => selection.selectNone()
        onContextMenuRequested: request => request.accepted = true
        onAuthenticationDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        onJavaScriptDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        onColorDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        onFileDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        onTooltipRequested: request => request.accepted = true
        onQuotaRequested: request => request.reject()
        onRegisterProtocolHandlerRequested: request => request.reject()
        onFileSystemAccessRequested: request => request.reject()
        onFullScreenRequested: request => request.reject()
    }

    Connections {
        target: web.profile
        function onDownloadRequested(download) { download.cancel(); }
    }
}

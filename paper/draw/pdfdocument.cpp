#include "pdfdocument.h"

PdfDocument::PdfDocument(const QString &title)
    : information(objects.add("<< /Title " + PdfObjects::text(title) + " /Creator (Palvestrin Print) >>")),
      tree(objects.reserve()), resources(objects.reserve())
{
}

void PdfDocument::addPage(QSizeF size, const QByteArray &content)
{
    const QByteArray box =
        "[0 0 " + PdfObjects::number(size.width()) + ' ' + PdfObjects::number(size.height()) + ']';
    const int stream = objects.addStream(content);
    const int page = objects.add("<< /Type /Page /Parent " + PdfObjects::reference(tree) + " /MediaBox " +
                                 box + " /Resources " + PdfObjects::reference(resources) + " /Contents " +
                                 PdfObjects::reference(stream) + " >>");
    pages += PdfObjects::reference(page);
}

QByteArray PdfDocument::file()
{
    objects.set(resources, "<< /Font " + glyphs.writeTo(objects) + " >>");
    objects.set(tree, "<< /Type /Pages /Count " + QByteArray::number(pages.size()) + " /Kids [" +
                          pages.join(' ') + "] >>");
    const int catalogue = objects.add("<< /Type /Catalog /Pages " + PdfObjects::reference(tree) + " >>");
    return objects.file(catalogue, information);
}

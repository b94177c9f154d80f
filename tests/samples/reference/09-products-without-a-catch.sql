select p.ProductName, s.SupplierName, round(p.ListPrice - p.PurchasePrice, 2) as margin, p.WeightKg
from Products as p
join Suppliers as s on s.SupplierID = p.SupplierID
where p.Discontinued = 0 and s.Preferred = 0 and p.WeightKg is not null
  and round(p.ListPrice - p.PurchasePrice, 2) >= 5
order by p.ProductName

select o.OrderID, c.Company, a.City, o.RequiredDate, o.ShippedAt,
       cast(julianday(substr(o.ShippedAt, 1, 10)) - julianday(o.RequiredDate) as integer) as late
from Orders as o
join Customers as c using (CustomerID)
join Addresses as a on a.AddressID = o.ShippingAddressID
where substr(o.ShippedAt, 1, 10) > o.RequiredDate
  and o.OrderDate >= '2024-01-01'
  and (a.City = 'München' or a.City = 'Köln' or a.City = 'Kraków' or a.City = '''s-Hertogenbosch' or a.City = 'King''s Lynn')
order by late desc, o.OrderID
